#include "gamedata/RecordFields.h"

#include <ostream>

#include "base/LineTokenizer.h"
#include "base/TextLines.h"

double CFieldReader::Number() {
    const double value = m_tokenizer.ReadNumber();
    ++m_tokenizer.Position();
    return value;
}

std::string CFieldReader::Text() {
    std::string value = m_tokenizer.ReadString();
    ++m_tokenizer.Position();
    return value;
}

void CFieldReader::Field(std::uint8_t& value) {
    value = StoreTruncated<std::uint8_t>(Number());
}

void CFieldReader::Field(std::int16_t& value) {
    value = StoreTruncated<std::int16_t>(Number());
}

void CFieldReader::Field(double& value) {
    value = Number();
}

void CFieldReader::Field(std::string& text) {
    text = Text();
}

void CFieldReader::Field(CNameText& text) {
    text = Text();
}

void CFieldWriter::Field(std::uint8_t& value) {
    m_out << static_cast<unsigned>(value) << '|';
}

void CFieldWriter::Field(std::int16_t& value) {
    m_out << value << '|';
}

void CFieldWriter::Field(double& value) {
    m_out << FormatNumber(value) << '|';
}

void CFieldWriter::Field(std::string& text) {
    m_out << text << '|';
}

void CFieldWriter::Field(CNameText& text) {
    m_out << text << '|';
}
