// The template of "Get Data - options", built once by DialogResource.
#pragma once

#include "platform/DialogTemplate.h"

CDialogTemplate MakeGetDataDialog();
