// The members a dialog binds to its list, drop-down and tree controls (DDX_Control). Each holds
// its control's data for the dialog's whole life, so the order-of-battle code works on the same
// store that the window shows.
#pragma once

#include "base/LineStore.h"
#include "base/TreeStore.h"

class CListBox : public CLineStore {};
class CComboBox : public CLineStore {};
class CTreeCtrl : public CTreeStore {};
