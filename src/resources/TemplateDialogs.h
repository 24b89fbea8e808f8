// The templates of the template library's two dialogs, built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeTemplateSelectDialog();
CDialogTemplate MakeTemplateSaveDialog();
