// The editor's resources by id. An id that names no resource is a program error: the program
// stops with a message.
#pragma once

#include "platform/DialogTemplate.h"
#include "platform/PixelImage.h"

const CDialogTemplate& DialogResource(int id);
const CMenuTemplate& MenuResource(int id);
const CPixelImage& IconResource(int id);

// Stops the program: a resource the code asks for is missing.
[[noreturn]] void MissingResource(const char* kind, int id);
