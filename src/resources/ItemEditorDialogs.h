// The templates of the leader, supply and gunboat editors, built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeLeaderDialog();
CDialogTemplate MakeSupplyDialog();
CDialogTemplate MakeGunboatDialog();
