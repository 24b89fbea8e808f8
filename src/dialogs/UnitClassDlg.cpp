#include "dialogs/UnitClassDlg.h"

#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr int kInfantry = 1;
constexpr int kCavalry = 2;
constexpr int kArtillery = 3;
// The limit only matters when the field is taken, which this dialog never does: the whole
// line is shown.
constexpr int kMaxLine = 40;
}  // namespace

CUnitClassDlg::CUnitClassDlg(std::string line)
    : CDialog(DialogResource(IDD_UNIT_CLASS)), m_strLine(std::move(line)) {
    OnClicked(IDC_CLASS_INFANTRY, [this] { EndDialog(kInfantry); });
    OnClicked(IDC_CLASS_CAVALRY, [this] { EndDialog(kCavalry); });
    OnClicked(IDC_CLASS_ARTILLERY, [this] { EndDialog(kArtillery); });
}

void CUnitClassDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_CLASS_LINE, m_strLine);
    DDV_MaxChars(pDX, m_strLine, kMaxLine);
}

void CUnitClassDlg::OnCancel() {
    EndDialog(kInfantry);
}
