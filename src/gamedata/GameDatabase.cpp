#include "gamedata/GameDatabase.h"

#include <fstream>
#include <sstream>

#include "base/FileWriter.h"
#include "base/LineCut.h"
#include "base/LineTokenizer.h"
#include "base/Result.h"
#include "base/TextLines.h"
#include "gamedata/GameRecords.h"

namespace {

// The next line of the header, taken apart at its bars.
struct CHeaderTokenizer {
    explicit CHeaderTokenizer(std::istream& in) {
        std::string line;
        ReadTextLine(in, line);
        tokenizer.SetDelimiter('|');
        tokenizer.SetLine(line);
    }

    CLineTokenizer tokenizer;
};

// One line of the header, read field by field. The tokenizer, a base listed first, is made
// before the reader that reads from it.
class CHeaderLine : private CHeaderTokenizer, public CFieldReader {
public:
    explicit CHeaderLine(std::istream& in) : CHeaderTokenizer(in), CFieldReader(tokenizer) {}
};

// Every record a section's line gives is kept, but a type without a name (a blank line, say):
// no unit can name it, and written back, its cost modifier would move into the name. Its weapon
// lines go with it. Likewise a kind without a keyword (a blank line, a lone word, an end tag
// cut short): every line begins with the empty keyword, so it would claim each order-of-battle
// line that no other kind claims.
template <typename Record>
bool IsKept(const Record&) {
    return true;
}
bool IsKept(const CTypeRecord& type) {
    return !type.m_strType.empty();
}
bool IsKept(const CKindRecord& kind) {
    return !kind.m_strKeyword.empty();
}

template <typename Record>
void ReadSection(std::istream& in, CDataList& list) {
    for (;;) {
        auto record = std::make_unique<Record>();
        record->ReadFrom(in);
        if (record->IsEnd()) {
            return;
        }
        if (IsKept(*record)) {
            list.PushBack(std::move(record));
        }
    }
}

void WriteSection(std::ostream& out, CDataList& list, const char* endTag) {
    for (CDataListNode* n = list.Head(); n; n = n->m_pNext) {
        n->m_pPayload->WriteTo(out, 1);
    }
    out << endTag;
}

}  // namespace

CGameDatabase::CGameDatabase() : m_Kinds(KeywordOf), m_Types(TypeNameOf) {
    m_nType = TYPE_DATABASE;
}

void CGameDatabase::VisitSwitches(CRecordFields& f) {
    f.Field(m_nOobHeader);
    f.Field(m_nDefaultThird);
    f.Field(m_nLeaderExtras);
    f.Field(m_nDefaultReserved);
    f.Field(m_nFormatVariant);
    f.Field(m_dFanaticBonus);
    f.Field(m_nMinQuality);
    f.Field(m_nMaxQuality);
    f.Field(m_nCountryCount);
}

void CGameDatabase::ReadFrom(std::istream& in) {
    CHeaderLine(in).Field(m_strName);
    CHeaderLine geometry(in);
    for (auto& value : m_nIconGeometry) {
        geometry.Field(value);
    }
    CHeaderLine sizes(in);
    for (auto& value : m_nCellSizes) {
        sizes.Field(value);
    }
    CHeaderLine switches(in);
    VisitSwitches(switches);
    // The list has room for ten names: a larger count is cut to ten, so that the file written
    // back names as many countries as it counts.
    if (m_nCountryCount > kMaxCountries) {
        m_nCountryCount = kMaxCountries;
    }
    CHeaderLine countries(in);
    for (std::size_t i = 0; i < m_nCountryCount; ++i) {
        countries.Field(m_strCountries[i]);
    }
    std::string skipped;
    ReadTextLine(in, skipped);  // the end of the header, whatever it holds

    ReadSection<CKindRecord>(in, m_Kinds);
    ReadSection<CBaseTypeRecord>(in, m_BaseTypes);
    ReadSection<CTypeRecord>(in, m_Types);
    ReadSection<CAttachedOobRecord>(in, m_AttachedOobs);
    CHeaderLine(in).Field(m_strTemplateFile);
    const int before = m_Templates.Count();
    ReadSection<CTemplateRecord>(in, m_Templates);
    int ordinal = 0;
    for (CDataListNode* n = m_Templates.SeekIndex(before); n; n = n->m_pNext) {
        static_cast<CTemplateRecord&>(*n->m_pPayload).m_nOrdinal = before + ordinal++;
    }
}

void CGameDatabase::WriteTo(std::ostream& out, std::uint8_t) {
    CFieldWriter fields(out);
    out << '\t';
    fields.Field(m_strName);
    out << kLineEnd << '\t';
    for (auto& value : m_nIconGeometry) {
        fields.Field(value);
    }
    out << kLineEnd << '\t';
    for (auto& value : m_nCellSizes) {
        fields.Field(value);
    }
    out << kLineEnd << '\t';
    VisitSwitches(fields);
    out << kLineEnd << '\t';
    for (std::size_t i = 0; i < m_nCountryCount && i < kMaxCountries; ++i) {
        fields.Field(m_strCountries[i]);
    }
    out << kLineEnd << "</A>" << kLineEnd;
    WriteSection(out, m_Kinds, "</B>");
    out << kLineEnd;
    WriteSection(out, m_BaseTypes, "</C>");
    out << kLineEnd;
    WriteSection(out, m_Types, "</D>");
    out << kLineEnd;
    WriteSection(out, m_AttachedOobs, "</E>");
    out << kLineEnd << '\t';
    fields.Field(m_strTemplateFile);
    out << kLineEnd;
    WriteSection(out, m_Templates, "</F>");  // the file's last line has no line break
}

std::string CGameDatabase::ToText() {
    std::ostringstream out;
    WriteTo(out, 0);
    std::string text = std::move(out).str();
    CutOverLongLines(text, '|');
    return text;
}

CWriteResult CGameDatabase::Save(const std::string& path) {
    return SaveAs(m_strFilePath, path, [&] { return ReplaceFile(path, ToText()); });
}

int CGameDatabase::Load(const std::string& path) {
    m_strFilePath = path;
    std::ifstream in;
    if (!OpenToRead(path, in)) {
        return RESULT_CANNOT_OPEN;
    }
    ReadFrom(in);
    return RESULT_DONE;
}
