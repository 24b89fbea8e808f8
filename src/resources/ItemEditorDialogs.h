// The templates of the unit, leader, supply and gunboat editors, built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeUnitDialog();
CDialogTemplate MakeLeaderDialog();
CDialogTemplate MakeSupplyDialog();
CDialogTemplate MakeGunboatDialog();
