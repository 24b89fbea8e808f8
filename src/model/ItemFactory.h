#pragma once

#include <cstdint>
#include <memory>

#include "model/OobItem.h"

// A new, empty item of the class a kind's type code names; none for the codes that name no
// class (1 to 3 and above 9), whose lines the readers therefore pass over.
std::unique_ptr<COobItem> CreateItem(std::uint8_t typeCode);
