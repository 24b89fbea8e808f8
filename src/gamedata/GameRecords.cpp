#include "gamedata/GameRecords.h"

#include <istream>
#include <ostream>

#include "base/LineTokenizer.h"
#include "base/TextLines.h"

namespace {

// Reads a number field and steps over the delimiter after it.
double Number(CLineTokenizer& t) {
    const double value = t.ReadNumber();
    ++t.Position();
    return value;
}

std::string Text(CLineTokenizer& t) {
    std::string value = t.ReadString();
    ++t.Position();
    return value;
}

void Field(std::ostream& out, std::string_view text) {
    out << text << '|';
}

void Field(std::ostream& out, double value) {
    out << FormatNumber(value) << '|';
}

void IntField(std::ostream& out, long value) {
    out << value << '|';
}

}  // namespace

std::string_view TypeNameOf(const CDataObject& record) {
    return static_cast<const CTypeRecord&>(record).m_strType;
}

std::string_view WeaponNameOf(const CDataObject& record) {
    return static_cast<const CWeaponRecord&>(record).m_strWeapon;
}

std::string_view KeywordOf(const CDataObject& record) {
    return static_cast<const CKindRecord&>(record).m_strKeyword;
}

void CGameRecord::ReadFrom(std::istream& in) {
    std::string line;
    // The end of the file closes every section still open: what was read so far is kept.
    if (ReadTextLine(in, line) == LineRead::End) {
        m_nCode = kEndTag;
        return;
    }
    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter('|');
    tokenizer.SetLine(line);
    if (tokenizer.GetLine() == m_pEndTag) {
        m_nCode = kEndTag;
        return;
    }
    ReadFields(tokenizer);
}

void CKindRecord::ReadFields(CLineTokenizer& t) {
    m_nCode = StoreTruncated<std::uint8_t>(Number(t));
    m_nLevel = StoreTruncated<std::uint8_t>(Number(t));
    m_strKeyword = Text(t);
    m_strName = Text(t);
}

void CKindRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    IntField(out, m_nCode);
    IntField(out, m_nLevel);
    Field(out, m_strKeyword);
    Field(out, m_strName);
    out << kLineEnd;
}

void CBaseTypeRecord::ReadFields(CLineTokenizer& t) {
    m_nCode = StoreTruncated<std::uint8_t>(Number(t));
    m_nBaseQuality = StoreTruncated<std::int16_t>(Number(t));
    m_dQualityFactor = Number(t);
    m_dBaseCost = Number(t);
    m_nMenPerPoint = StoreTruncated<std::int16_t>(Number(t));
    m_nMaxStrength = StoreTruncated<std::int16_t>(Number(t));
    m_strName = Text(t);
}

void CBaseTypeRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    IntField(out, m_nCode);
    IntField(out, m_nBaseQuality);
    Field(out, m_dQualityFactor);
    Field(out, m_dBaseCost);
    IntField(out, m_nMenPerPoint);
    IntField(out, m_nMaxStrength);
    Field(out, m_strName);
    out << kLineEnd;
}

void CWeaponRecord::ReadFields(CLineTokenizer& t) {
    m_strWeapon = Text(t);
    m_dCostModifier = Number(t);
    m_strName = Text(t);
}

void CWeaponRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    Field(out, m_strWeapon);
    Field(out, m_dCostModifier);
    Field(out, m_strName);
    out << kLineEnd;
}

CTypeRecord::CTypeRecord() : CGameRecord("</D>"), m_Weapons(WeaponNameOf) {}

void CTypeRecord::ReadFrom(std::istream& in) {
    CGameRecord::ReadFrom(in);
    if (IsEnd()) {
        return;
    }
    for (;;) {
        auto weapon = std::make_unique<CWeaponRecord>();
        weapon->ReadFrom(in);
        if (weapon->IsEnd()) {
            break;
        }
        // A line without a weapon name (a blank line, say) names nothing a unit could use, and
        // written back, its cost modifier would move into the name: it is passed over.
        if (!weapon->m_strWeapon.empty()) {
            m_Weapons.PushBack(std::move(weapon));
        }
    }
}

void CTypeRecord::ReadFields(CLineTokenizer& t) {
    m_nCode = StoreTruncated<std::uint8_t>(Number(t));
    m_strType = Text(t);
    m_dCostModifier = Number(t);
    m_strName = Text(t);
}

void CTypeRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    IntField(out, m_nCode);
    Field(out, m_strType);
    Field(out, m_dCostModifier);
    Field(out, m_strName);
    out << kLineEnd;
    for (CDataListNode* n = m_Weapons.Head(); n; n = n->m_pNext) {
        n->m_pPayload->WriteTo(out, static_cast<std::uint8_t>(indent + 1));
    }
    WriteTabs(out, static_cast<std::uint8_t>(indent + 1));
    out << "</W>" << kLineEnd;
}

void CAttachedOobRecord::ReadFields(CLineTokenizer& t) {
    m_strFile = Text(t);
    m_strName = Text(t);
}

void CAttachedOobRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    Field(out, m_strFile);
    Field(out, m_strName);
    out << kLineEnd;
}

void CTemplateRecord::ReadFields(CLineTokenizer& t) {
    m_nCode = StoreTruncated<std::uint8_t>(Number(t));
    m_nLevel = StoreTruncated<std::uint8_t>(Number(t));
    m_nCountry = StoreTruncated<std::uint8_t>(Number(t));
    m_dCost = Number(t);
    m_strName = Text(t);
}

void CTemplateRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    IntField(out, m_nCode);
    IntField(out, m_nLevel);
    IntField(out, m_nCountry);
    Field(out, m_dCost);
    Field(out, m_strName);
    out << kLineEnd;
}
