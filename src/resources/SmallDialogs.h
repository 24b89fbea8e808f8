// The templates of the workspace dialog and the small choosers, built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeWorkspaceDialog();
CDialogTemplate MakeFindDialog();
CDialogTemplate MakeAddListDialog();
CDialogTemplate MakeAttachedDialog();
CDialogTemplate MakeUnitClassDialog();
