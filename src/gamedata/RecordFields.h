// The fields of the target file's lines, each followed by a bar: a record or a header line hands
// its fields, in the line's order, to one of these, so that its reader and its writer go through
// the same list.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>

#include "base/DataObject.h"

class CLineTokenizer;

class CRecordFields {
public:
    virtual ~CRecordFields() = default;
    virtual void Field(std::uint8_t& value) = 0;
    virtual void Field(std::int16_t& value) = 0;
    virtual void Field(double& value) = 0;
    virtual void Field(std::string& text) = 0;
    virtual void Field(CNameText& text) = 0;
};

// Fills the fields from a line the tokenizer holds (its delimiter the bar), field by field.
class CFieldReader : public CRecordFields {
public:
    explicit CFieldReader(CLineTokenizer& tokenizer) : m_tokenizer(tokenizer) {}

    void Field(std::uint8_t& value) override;
    void Field(std::int16_t& value) override;
    void Field(double& value) override;
    void Field(std::string& text) override;
    void Field(CNameText& text) override;

private:
    double Number();
    std::string Text();

    CLineTokenizer& m_tokenizer;
};

// Writes each field and a bar after it.
class CFieldWriter : public CRecordFields {
public:
    explicit CFieldWriter(std::ostream& out) : m_out(out) {}

    void Field(std::uint8_t& value) override;
    void Field(std::int16_t& value) override;
    void Field(double& value) override;
    void Field(std::string& text) override;
    void Field(CNameText& text) override;

private:
    std::ostream& m_out;
};
