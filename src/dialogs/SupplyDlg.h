// "Edit supply" (dialog 117): name, picture and supply points of a supply train; a depot is
// edited through a supply item made from it, its number in the picture's place.
#pragma once

#include <string>

#include "dialogs/ItemEditorDlg.h"
#include "model/SupplyItem.h"

class CSupplyDlg : public CItemEditorDlg {
public:
    CSupplyDlg(CGameDatabase& database, const CSupplyItem& supply);

    std::string m_strName;
    unsigned m_nPicture = 0;
    unsigned m_nSupply = 0;

protected:
    bool OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Reset() override;

private:
    void Recompute();
    void OnSupplyChanged();
    void OnAccept();

    const CSupplyItem& m_supply;
    CSupplyItem m_copy;
};

// A depot's fields in a supply item for the editor, and the depot as the accepted supply item
// leaves it: the 32-bit number goes through the 16-bit picture and comes back sign-extended.
CSupplyItem SupplyOfDepot(const CDepotItem& depot);
std::unique_ptr<CDepotItem> DepotOfSupply(const CDepotItem& depot, const COobItem& edited);
