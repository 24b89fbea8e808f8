#include "dialogs/ItemEditorDlg.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "dialogs/PictureDlg.h"
#include "gamedata/GameDatabase.h"
#include "model/OobItem.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
std::string Figure(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%g ", value);
    return text;
}
}  // namespace

CItemEditorDlg::CItemEditorDlg(int dialogId, CGameDatabase& database)
    : CDialog(DialogResource(dialogId)), m_database(database) {
    OnClicked(IDC_ENTER, [this] { GotoDlgCtrl(IDC_ITEM_ACCEPT); });
    OnClicked(IDC_ITEM_RESET, [this] { Reset(); });
    OnClicked(IDC_ITEM_CANCEL, [this] { EndDialog(0); });
}

void CItemEditorDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_ITEM_MODIFIER, m_strModifier);
    DDX_Text(pDX, IDC_ITEM_COST, m_strCost);
}

void CItemEditorDlg::ShowFigures(double modifier, double cost) {
    m_strModifier = Figure(modifier);
    m_strCost = Figure(cost);
}

void CItemEditorDlg::Finish(std::unique_ptr<COobItem> edited) {
    m_pEdited = std::move(edited);
    EndDialog(1);
}

// The strip's path is opened as the workspace gives it, a relative one from the current folder,
// like the workspace's other files. A cell size the game data holds below 0 reaches the selector
// as a huge width, which gives no cell.
std::optional<unsigned> CItemEditorDlg::PickPicture(int picture, unsigned number,
                                                    int acceptEnabled) {
    if (!m_pWorkspace || m_pWorkspace->m_nPictureFlags[picture] != 1) {
        return std::nullopt;
    }
    const int iconClass = picture - CWorkspace::INFANTRY_ICONS + 1;
    const bool icons = iconClass >= 1;
    CPictureDlg selector(m_pWorkspace->m_strPicturePaths[picture],
                         static_cast<unsigned>(m_database.m_nCellSizes[2 * picture]),
                         static_cast<unsigned>(m_database.m_nCellSizes[2 * picture + 1]),
                         icons ? m_database.IconOffset(iconClass) : 0,
                         icons ? m_database.IconTrailing(iconClass) : 0, number, acceptEnabled);
    if (selector.DoModal() != 1) {
        return std::nullopt;
    }
    return selector.m_nPictureNumber;
}

void CopyRecords(const COobItem& from, COobItem& to) {
    to.m_strName = from.m_strName;
    to.m_pKind = from.m_pKind;
    to.m_pBaseType = from.m_pBaseType;
    to.m_pType = from.m_pType;
    to.m_pWeapon = from.m_pWeapon;
    to.m_pDatabase = from.m_pDatabase;
}

std::int16_t StoredShort(unsigned field) {
    return static_cast<std::int16_t>(
        std::min<unsigned>(field, std::numeric_limits<std::int16_t>::max()));
}

unsigned ShownNumber(int stored) {
    return static_cast<unsigned>(std::max(stored, 0));
}
