// The template of "Select picture", built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakePictureDialog();
