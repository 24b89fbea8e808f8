#include "dialogs/LeaderDlg.h"

#include <cstdint>

#include "gamedata/GameDatabase.h"
#include "model/Workspace.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"

namespace {
constexpr int kMaxName = 50;
constexpr std::uint8_t kCommandClass = 4;
}  // namespace

CLeaderDlg::CLeaderDlg(CGameDatabase& database, const CLeaderItem& leader)
    : CItemEditorDlg(IDD_LEADER, database), m_leader(leader) {
    OnKillFocus(IDC_ITEM_NAME, [this] {
        UpdateData(true);
        m_copy.m_strName = m_strName;
    });
    OnSelChange(IDC_ITEM_COMMAND, [this] { OnCommandSelected(); });
    OnKillFocus(IDC_ITEM_LEADERSHIP, [this] { OnLeadershipChanged(); });
    OnKillFocus(IDC_ITEM_THIRD, [this] { OnThirdChanged(); });
    OnKillFocus(IDC_ITEM_POSITION, [this] { OnPositionChanged(); });
    // The faces can be looked at whatever the flag; a face is chosen only where the game data
    // has leader extras.
    OnClicked(IDC_ITEM_PICTURE_PICK, [this] {
        if (const auto number =
                PickPicture(CWorkspace::LEADER_FACES, ShownNumber(m_copy.m_nLeaderNumber),
                            m_database.m_nLeaderExtras != 0 ? 1 : 0)) {
            m_copy.m_nLeaderNumber = static_cast<std::int32_t>(*number);
            m_nPosition = *number;
            UpdateData(false);
        }
    });
    OnClicked(IDC_ITEM_ACCEPT, [this] { OnAccept(); });
}

void CLeaderDlg::DoDataExchange(CDataExchange* pDX) {
    CItemEditorDlg::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_ITEM_COMMAND, m_commands);
    DDX_Text(pDX, IDC_ITEM_NAME, m_strName);
    DDV_MaxChars(pDX, m_strName, kMaxName);
    DDX_Text(pDX, IDC_ITEM_POSITION, m_nPosition);
    DDV_MinMaxUInt(pDX, m_nPosition, 0, 100000);
    DDX_Text(pDX, IDC_ITEM_LEADERSHIP, m_nLeadership);
    DDV_MinMaxUInt(pDX, m_nLeadership, 1, 6);
    DDX_Text(pDX, IDC_ITEM_THIRD, m_nThird);
    DDV_MinMaxUInt(pDX, m_nThird, 0, 100000);
}

bool CLeaderDlg::OnInitDialog() {
    CItemEditorDlg::OnInitDialog();
    if (m_database.m_nLeaderExtras == 0) {
        GetDlgItem(IDC_ITEM_THIRD)->EnableWindow(false);
        GetDlgItem(IDC_ITEM_POSITION)->EnableWindow(false);
    }
    Reset();
    return true;
}

// Only a flag of exactly 1 lets the fields through; other non-zero values leave the edits
// enabled but the stored values as they were.
bool CLeaderDlg::ExtrasAllowed() const {
    return m_database.m_nLeaderExtras == 1;
}

void CLeaderDlg::Reset() {
    CopyRecords(m_leader, m_copy);
    m_copy.m_nLeaderNumber = m_leader.m_nLeaderNumber;
    m_copy.m_nLeadership = m_leader.m_nLeadership;
    m_copy.m_nThird = m_leader.m_nThird;
    m_strName = m_copy.m_strName;
    m_nPosition = ShownNumber(m_copy.m_nLeaderNumber);
    m_nLeadership = ShownNumber(m_copy.m_nLeadership);
    m_nThird = ShownNumber(m_copy.m_nThird);
    m_commands.ResetContent();
    for (CDataListNode* node = m_database.m_Types.Head(); node; node = node->m_pNext) {
        auto& type = static_cast<CTypeRecord&>(*node->m_pPayload);
        if (type.ClassCode() != kCommandClass) {
            continue;
        }
        const int line = m_commands.AddString(std::string(type.m_strName));
        m_commands.SetItemData(line, reinterpret_cast<std::uintptr_t>(&type));
        if (&type == m_copy.m_pType) {
            m_commands.SetCurSel(line);
        }
    }
    Recompute();
    UpdateData(false);
}

void CLeaderDlg::Recompute() {
    ShowFigures(m_copy.CostModifier(), m_copy.Cost());
}

void CLeaderDlg::OnCommandSelected() {
    const int line = m_commands.GetCurSel();
    if (line != LB_ERR) {
        m_copy.m_pType = reinterpret_cast<CTypeRecord*>(m_commands.GetItemData(line));
    }
    Recompute();
    UpdateData(false);
}

void CLeaderDlg::OnLeadershipChanged() {
    UpdateData(true);
    m_copy.m_nLeadership = StoredShort(m_nLeadership);
    Recompute();
    UpdateData(false);
}

void CLeaderDlg::OnThirdChanged() {
    UpdateData(true);
    if (ExtrasAllowed()) {
        m_copy.m_nThird = StoredShort(m_nThird);
        return;
    }
    m_nThird = ShownNumber(m_copy.m_nThird);
    UpdateData(false);
}

void CLeaderDlg::OnPositionChanged() {
    UpdateData(true);
    if (ExtrasAllowed()) {
        m_copy.m_nLeaderNumber = static_cast<std::int32_t>(m_nPosition);
        return;
    }
    m_nPosition = ShownNumber(m_copy.m_nLeaderNumber);
    UpdateData(false);
}

// A field the check refuses shows its message, and Accept goes on with what the copy holds.
void CLeaderDlg::OnAccept() {
    UpdateData(true);
    auto edited = std::make_unique<CLeaderItem>(m_leader);
    CopyRecords(m_copy, *edited);
    edited->m_nLeaderNumber = m_copy.m_nLeaderNumber;
    edited->m_nLeadership = m_copy.m_nLeadership;
    edited->m_nThird = m_copy.m_nThird;
    Finish(std::move(edited));
}
