// The records of the target platform file. Each reads and writes one line of its section.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/DataList.h"
#include "base/DataObject.h"
#include "gamedata/RecordFields.h"

// Every record carries a status: kNotRead after construction, kEndTag once the line it read
// was its section's end tag (or the file had ended). In kinds, base types, types and templates
// the status is the first number of the line, the type or class code, so a data line giving
// 255 there ends its section as the end tag would.
class CGameRecord : public CDataObject {
public:
    static constexpr std::uint8_t kNotRead = 254;
    static constexpr std::uint8_t kEndTag = 255;

    explicit CGameRecord(const char* endTag) : m_pEndTag(endTag) {}

    // Reads one line: either the end tag or the record's fields.
    void ReadFrom(std::istream& in) override;
    // Writes the record's line, indent tabs deep.
    void WriteTo(std::ostream& out, std::uint8_t indent) override;
    bool IsEnd() const { return m_nCode == kEndTag; }

    std::uint8_t m_nCode = kNotRead;

protected:
    // Hands every field of the line to fields, in the line's order: the one list of the fields
    // that both ReadFrom and WriteTo go through.
    virtual void VisitFields(CRecordFields& fields) = 0;

private:
    const char* m_pEndTag;
};

// An entry kind (section B): which item class the lines beginning with the keyword make.
class CKindRecord : public CGameRecord {
public:
    CKindRecord() : CGameRecord("</B>") {}
    std::uint8_t TypeCode() const { return m_nCode; }

    std::uint8_t m_nLevel = 0;
    std::string m_strKeyword;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// The cost parameters of a unit class (section C).
class CBaseTypeRecord : public CGameRecord {
public:
    CBaseTypeRecord() : CGameRecord("</C>") {}
    std::uint8_t ClassCode() const { return m_nCode; }

    std::int16_t m_nBaseQuality = 0;
    double m_dQualityFactor = 0.0;
    double m_dBaseCost = 0.0;
    std::int16_t m_nMenPerPoint = 0;
    std::int16_t m_nMaxStrength = 0;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// A weapon a type may carry; lives in its type's list.
class CWeaponRecord : public CGameRecord {
public:
    CWeaponRecord() : CGameRecord("</W>") {}

    std::string m_strWeapon;
    double m_dCostModifier = 0.0;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// A unit type, leader command, supply or structure type (section D), with its weapons.
class CTypeRecord : public CGameRecord {
public:
    CTypeRecord();
    void ReadFrom(std::istream& in) override;
    void WriteTo(std::ostream& out, std::uint8_t indent) override;
    std::uint8_t ClassCode() const { return m_nCode; }

    std::string m_strType;
    double m_dCostModifier = 0.0;
    CDataList m_Weapons;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// A ready-made order of battle that New, Attached OOB can copy (section E).
class CAttachedOobRecord : public CGameRecord {
public:
    CAttachedOobRecord() : CGameRecord("</E>") {}

    std::string m_strFile;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// One template of the template file (section F).
class CTemplateRecord : public CGameRecord {
public:
    CTemplateRecord() : CGameRecord("</F>") {}
    std::uint8_t TypeCode() const { return m_nCode; }

    std::uint8_t m_nLevel = 0;
    std::uint8_t m_nCountry = 0;
    // The position of the template's block in the template file. It is not stored in the
    // target file, so it is as wide as the list can be long: more than 256 templates stay
    // addressable.
    int m_nOrdinal = 0;
    double m_dCost = 0.0;

protected:
    void VisitFields(CRecordFields& fields) override;
};

// The keys the record lists are indexed by.
std::string_view TypeNameOf(const CDataObject& record);
std::string_view WeaponNameOf(const CDataObject& record);
std::string_view KeywordOf(const CDataObject& record);
