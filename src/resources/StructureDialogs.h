// The templates of "Edit structure" and "Structure summary", built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeStructureDialog();
CDialogTemplate MakeSummaryDialog();
