#include "gamedata/GameRecords.h"

#include <istream>
#include <ostream>

#include "base/LineTokenizer.h"
#include "base/TextLines.h"

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
    CFieldReader fields(tokenizer);
    VisitFields(fields);
}

void CGameRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    WriteTabs(out, indent);
    CFieldWriter fields(out);
    VisitFields(fields);
    out << kLineEnd;
}

void CKindRecord::VisitFields(CRecordFields& f) {
    f.Field(m_nCode);
    f.Field(m_nLevel);
    f.Field(m_strKeyword);
    f.Field(m_strName);
}

void CBaseTypeRecord::VisitFields(CRecordFields& f) {
    f.Field(m_nCode);
    f.Field(m_nBaseQuality);
    f.Field(m_dQualityFactor);
    f.Field(m_dBaseCost);
    f.Field(m_nMenPerPoint);
    f.Field(m_nMaxStrength);
    f.Field(m_strName);
}

void CWeaponRecord::VisitFields(CRecordFields& f) {
    f.Field(m_strWeapon);
    f.Field(m_dCostModifier);
    f.Field(m_strName);
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

void CTypeRecord::VisitFields(CRecordFields& f) {
    f.Field(m_nCode);
    f.Field(m_strType);
    f.Field(m_dCostModifier);
    f.Field(m_strName);
}

void CTypeRecord::WriteTo(std::ostream& out, std::uint8_t indent) {
    CGameRecord::WriteTo(out, indent);
    for (CDataListNode* n = m_Weapons.Head(); n; n = n->m_pNext) {
        n->m_pPayload->WriteTo(out, static_cast<std::uint8_t>(indent + 1));
    }
    WriteTabs(out, static_cast<std::uint8_t>(indent + 1));
    out << "</W>" << kLineEnd;
}

void CAttachedOobRecord::VisitFields(CRecordFields& f) {
    f.Field(m_strFile);
    f.Field(m_strName);
}

void CTemplateRecord::VisitFields(CRecordFields& f) {
    f.Field(m_nCode);
    f.Field(m_nLevel);
    f.Field(m_nCountry);
    f.Field(m_dCost);
    f.Field(m_strName);
}
