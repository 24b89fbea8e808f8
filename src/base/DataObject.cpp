#include "base/DataObject.h"

#include <ostream>

void CDataObject::WriteTo(std::ostream&, std::uint8_t) {}

void CDataObject::ReadFrom(std::istream&) {}

void CDataObject::WriteTabs(std::ostream& out, std::uint8_t n) {
    for (std::uint8_t i = 0; i < n; ++i) {
        out.put('\t');
    }
}
