// The framework's pictures are the base's pixel images; icons have the system's one size.
#pragma once

#include "base/PixelImage.h"

// The size the system draws icons at (SM_CXICON, SM_CYICON).
constexpr int kIconSize = 32;
