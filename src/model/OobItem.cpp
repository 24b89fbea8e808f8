#include "model/OobItem.h"

#include "base/LineTokenizer.h"
#include "base/TreeWalk.h"
#include "gamedata/GameDatabase.h"
#include "gamedata/GameRecords.h"
#include "model/ItemLineReader.h"

void COobItem::Read(const std::string& line) {
    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter(' ');
    tokenizer.SetLine(line);
    m_pKind = FindKindForNormalisedLine(tokenizer.Line());
    CItemLineReader reader(tokenizer, m_pKind);
    ReadFields(reader);
}

void COobItem::ReadFields(CItemLineReader&) {}

void COobItem::ToText(std::string&) const {}

void COobItem::ToHtml(std::string&, const CTreeStore&, HTREEITEM, int) const {}

double COobItem::Cost() const {
    return 0.0;
}

double COobItem::Men() const {
    return 0.0;
}

double COobItem::Aggregate(const CTreeStore&, HTREEITEM, int, int) const {
    return Cost();
}

std::unique_ptr<COobItem> COobItem::Clone() const {
    return std::make_unique<COobItem>(*this);
}

CKindRecord* COobItem::FindKindByKeyword(std::string_view text) {
    if (!m_pDatabase) {
        return nullptr;
    }
    return static_cast<CKindRecord*>(m_pDatabase->m_Kinds.FindByKey(text));
}

CKindRecord* COobItem::FindKindByType(std::uint8_t code) {
    if (!m_pDatabase) {
        return nullptr;
    }
    CDataList& kinds = m_pDatabase->m_Kinds;
    for (kinds.Rewind(); kinds.Current(); kinds.Next()) {
        auto* kind = static_cast<CKindRecord*>(kinds.CurrentPayload());
        if (kind->TypeCode() == code) {
            return kind;
        }
    }
    return nullptr;
}

CKindRecord* COobItem::FindKindForLine(const std::string& line) {
    CLineTokenizer tokenizer;
    tokenizer.SetDelimiter(' ');
    tokenizer.SetLine(line);
    return FindKindForNormalisedLine(tokenizer.Line());
}

CKindRecord* COobItem::FindKindForNormalisedLine(std::string_view line) {
    return FindKindInLine(m_pDatabase, line);
}

namespace {

bool InCategory(const COobItem& item, int category) {
    if (category == CATEGORY_ALL) {
        return true;
    }
    if (!item.m_pBaseType) {
        return false;
    }
    switch (item.m_pBaseType->ClassCode()) {
        case 1:
            return category == CATEGORY_INFANTRY;
        case 2:
            return category == CATEGORY_CAVALRY;
        case 3:
            return category == CATEGORY_ARTILLERY;
        case 4:
            return category == CATEGORY_LEADERS;
        case 5:
            return category == CATEGORY_SUPPLY;
        default:
            return false;
    }
}

double Measure(const COobItem& item, int measure) {
    switch (measure) {
        case MEASURE_COST:
            return item.Cost();
        case MEASURE_COUNT:
            return 1.0;
        case MEASURE_MEN:
            return item.Men();
        default:
            return 0.0;
    }
}

}  // namespace

double COobItem::SumSubtree(const CTreeStore& tree, HTREEITEM entry, int category, int measure) {
    double sum = 0.0;
    for (CTreeWalk walk(tree, entry); !walk.Done(); walk.Step()) {
        const COobItem* item = ItemOf(tree, walk.Current());
        if (item && InCategory(*item, category)) {
            sum += Measure(*item, measure);
        }
    }
    return sum;
}
