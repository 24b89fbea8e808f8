// "Select picture" (dialog 110): shows one cell of a bitmap strip at a time, steps through the
// selectable cells and gives the chosen picture number (the cell number minus the offset).
#pragma once

#include <cstdint>
#include <string>

#include "base/PixelImage.h"
#include "platform/Dialog.h"

class CPictureDlg : public CDialog {
public:
    CPictureDlg(std::string bitmapFile, unsigned cellWidth, unsigned cellHeight, unsigned offset,
                unsigned trailing, unsigned pictureNumber, int acceptEnabled = 1);

    // The inputs, set before DoModal. After result 1 m_nPictureNumber holds the chosen number;
    // after result 0 (Cancel, Escape, the close box) it holds the number given.
    std::string m_strBitmapFile;
    unsigned m_nCellWidth;
    unsigned m_nCellHeight;
    unsigned m_nOffset;    // leading cells that cannot be chosen
    unsigned m_nTrailing;  // trailing cells that cannot be chosen
    unsigned m_nPictureNumber;
    int m_nAcceptEnabled;  // 0: the user can look but not choose

    unsigned m_nPictureField = 0;  // the Picture number edit

protected:
    bool OnInitDialog() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnPaint(CPaintDC& dc) override;

private:
    void LoadStrip();
    void GoTo(unsigned pictureNumber);
    void ShowCell(std::uint64_t cell);
    void OnPrevious();
    void OnNext();
    void OnNumberTyped();
    void OnAccept();

    CPixelImage m_strip;
    std::uint64_t m_nColumns = 0;
    std::uint64_t m_nRows = 0;
    bool m_bSelectable = false;  // some cell can be chosen
    std::uint64_t m_nLast = 0;   // the highest selectable cell, when there is one
    std::uint64_t m_nCell = 0;
};
