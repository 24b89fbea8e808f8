// "Structure summary" (dialog 122): what share of a structure's cost each arm takes, as a
// percentage and a bar, and the effective cost per leader, man and cannon against the base cost
// of the arm. Opened on one structure from its editor, or on the top-level entries to step from
// army to army. It changes nothing and always closes with 0.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/TreeStore.h"
#include "platform/Dialog.h"

class COobDocument;

class CSummaryDlg : public CDialog {
public:
    enum : std::uint16_t {
        MODE_STRUCTURE = 0,  // the given entry; the arrows are disabled
        MODE_ARMIES = 1,     // the first top-level entry, then from army to army
    };

    // document gives the game data; none leaves every reference base cost unknown.
    CSummaryDlg(std::uint16_t mode, HTREEITEM entry, const COobDocument* document,
                const CTreeStore& tree);

    HTREEITEM Current() const { return m_hCurrent; }

    std::string m_strName;
    // Per row (leaders, infantry, cavalry, artillery, supply): the share of the cost, and for
    // the first four the effective cost and its percentage of the reference base cost.
    std::array<std::string, 5> m_strShares;
    std::array<std::string, 4> m_strEffective;
    std::array<std::string, 4> m_strOfBase;

protected:
    bool OnInitDialog() override;
    void OnCancel() override { EndDialog(0); }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void Compute();
    void ShowBar(int barId, double share);
    void OnNext();
    void OnPrevious();

    std::uint16_t m_nMode;
    HTREEITEM m_hCurrent;
    const COobDocument* m_pDocument;
    const CTreeStore& m_tree;
};
