// The root of every object the program keeps in its files: items, game-data records, the
// workspace, the game database and the document.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "base/SmallObjectPool.h"

// An object's name. Names live in the pool: an order of battle holds one for each of its entries,
// most too long to sit inside a string of their own, and reading a large file would otherwise
// spend a tenth of its time in the general allocator.
using CNameText = std::basic_string<char, std::char_traits<char>, CPoolAllocator<char>>;

// Type codes of the objects.
enum : std::uint8_t {
    TYPE_UNIT = 0,
    TYPE_LEADER = 4,
    TYPE_SUPPLY = 5,
    TYPE_STRUCTURE = 6,
    TYPE_ARMY = 7,
    TYPE_DEPOT = 8,
    TYPE_GUNBOAT = 9,
    TYPE_ITEM = 10,
    TYPE_DOCUMENT = 20,
    TYPE_WORKSPACE = 21,
    TYPE_DATABASE = 22,
    TYPE_OBJECT = 255,
};

class CDataObject {
public:
    CDataObject() = default;
    CDataObject(const CDataObject&) = default;
    CDataObject& operator=(const CDataObject&) = default;
    virtual ~CDataObject() = default;

    // Writes the object as lines of its file format, indent tabs deep.
    virtual void WriteTo(std::ostream& out, std::uint8_t indent);
    // Reads the object from a stream; the root's version does nothing.
    virtual void ReadFrom(std::istream& in);

    static void WriteTabs(std::ostream& out, std::uint8_t n);

    std::uint8_t m_nType = TYPE_OBJECT;
    CNameText m_strName;
};
