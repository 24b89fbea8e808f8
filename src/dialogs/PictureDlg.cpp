#include "dialogs/PictureDlg.h"

#include <algorithm>
#include <utility>

#include "base/BmpReader.h"
#include "platform/DataExchange.h"
#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
constexpr unsigned kMaxPictureNumber = 10000;
// Where the current cell is painted, in pixels of the client area.
constexpr int kCellLeft = 10;
constexpr int kCellTop = 10;
}  // namespace

CPictureDlg::CPictureDlg(std::string bitmapFile, unsigned cellWidth, unsigned cellHeight,
                         unsigned offset, unsigned trailing, unsigned pictureNumber,
                         int acceptEnabled)
    : CDialog(DialogResource(IDD_PICTURE)),
      m_strBitmapFile(std::move(bitmapFile)),
      m_nCellWidth(cellWidth),
      m_nCellHeight(cellHeight),
      m_nOffset(offset),
      m_nTrailing(trailing),
      m_nPictureNumber(pictureNumber),
      m_nAcceptEnabled(acceptEnabled) {
    OnKillFocus(IDC_PIC_NUMBER, [this] { OnNumberTyped(); });
    OnClicked(IDC_PIC_PREV, [this] { OnPrevious(); });
    OnClicked(IDC_PIC_NEXT, [this] { OnNext(); });
    OnClicked(IDC_PIC_CANCEL, [this] { EndDialog(0); });
    OnClicked(IDC_PIC_RESET, [this] { GoTo(m_nPictureNumber); });
    OnClicked(IDC_PIC_ACCEPT, [this] { OnAccept(); });
    OnClicked(IDC_ENTER, [this] { GotoDlgCtrl(IDC_PIC_ACCEPT); });
}

void CPictureDlg::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Text(pDX, IDC_PIC_NUMBER, m_nPictureField);
    DDV_MinMaxUInt(pDX, m_nPictureField, 0, kMaxPictureNumber);
}

bool CPictureDlg::OnInitDialog() {
    LoadStrip();
    GoTo(m_nPictureNumber);
    GetDlgItem(IDC_PIC_ACCEPT)->EnableWindow(m_nAcceptEnabled != 0);
    CDialog::OnInitDialog();
    return true;
}

void CPictureDlg::OnCancel() {
    EndDialog(0);
}

// A strip that cannot be read is named with the reason and counts as one of no cells. A cell
// size of 0 also gives no cells (a division by it would be undefined); a size the database holds
// below 0 arrives as a huge unsigned width and gives no column on its own. With no selectable
// cell (no cells, or the offset and trailing cells covering them all, where the unsigned last
// cell would wrap round) nothing is painted, the arrows are disabled and the number is taken as
// typed, so the item's number can still be changed without its picture.
void CPictureDlg::LoadStrip() {
    CImageReadResult read = ReadBmpFile(m_strBitmapFile);
    if (!read.Done()) {
        MessageBox("Cannot read " + read.error, "Error", MB_ICONEXCLAMATION);
    }
    m_strip = std::move(read.image);
    const auto width = static_cast<std::uint64_t>(m_strip.width);
    const auto height = static_cast<std::uint64_t>(m_strip.height);
    m_nColumns = m_nCellWidth == 0 ? 0 : width / m_nCellWidth;
    m_nRows = m_nCellHeight == 0 ? 0 : height / m_nCellHeight;
    const std::uint64_t cells = m_nColumns * m_nRows;
    m_bSelectable = cells > std::uint64_t{m_nOffset} + m_nTrailing;
    m_nLast = m_bSelectable ? cells - m_nTrailing - 1 : 0;
    GetDlgItem(IDC_PIC_PREV)->EnableWindow(m_bSelectable);
    GetDlgItem(IDC_PIC_NEXT)->EnableWindow(m_bSelectable);
}

// The cell is taken 64 bits wide, so a number near the top of the unsigned range is pulled down
// to the last cell instead of wrapping round below the offset.
void CPictureDlg::GoTo(unsigned pictureNumber) {
    std::uint64_t cell = std::uint64_t{pictureNumber} + m_nOffset;
    if (m_bSelectable) {
        cell = std::min(cell, m_nLast);
    }
    ShowCell(cell);
}

void CPictureDlg::ShowCell(std::uint64_t cell) {
    m_nCell = cell;
    m_nPictureField = static_cast<unsigned>(m_nCell - m_nOffset);
    RedrawWindow();
    UpdateData(false);
}

void CPictureDlg::OnPrevious() {
    if (m_nCell > m_nOffset) {
        ShowCell(m_nCell - 1);
    }
}

void CPictureDlg::OnNext() {
    if (m_nCell < m_nLast) {
        ShowCell(m_nCell + 1);
    }
}

void CPictureDlg::OnNumberTyped() {
    if (UpdateData(true)) {
        GoTo(m_nPictureField);
    }
}

// The field is not taken here: leaving the edit for this button has already applied it.
void CPictureDlg::OnAccept() {
    m_nPictureNumber = static_cast<unsigned>(m_nCell - m_nOffset);
    EndDialog(1);
}

void CPictureDlg::OnPaint(CPaintDC& dc) {
    if (!m_bSelectable) {
        return;
    }
    const auto width = static_cast<int>(m_nCellWidth);
    const auto height = static_cast<int>(m_nCellHeight);
    dc.BitBlt(kCellLeft, kCellTop, width, height, m_strip,
              static_cast<int>(m_nCell % m_nColumns) * width,
              static_cast<int>(m_nCell / m_nColumns) * height);
}
