// The HTML fragment of each item kind: one line of the HTML report.
#include <cctype>

#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/ContainerTotals.h"
#include "model/GunboatItem.h"
#include "model/HtmlText.h"
#include "model/LeaderItem.h"
#include "model/NumberText.h"
#include "model/SupplyItem.h"
#include "model/TextLines.h"
#include "model/UnitItem.h"

namespace {

std::string_view KindText(const COobItem& item) {
    return item.m_pKind ? std::string_view(item.m_pKind->m_strName) : std::string_view();
}

void AppendCost(std::string& out, const COobItem& item, int flags) {
    if (flags & HTML_COSTS) {
        out += ", Cost <B>";
        AppendGeneral(out, item.Cost());
        out += "</B>";
    }
}

// name <SMALL>(kind text <B>number</B>
void AppendNamedCount(std::string& out, const COobItem& item, long long number) {
    out += "<DD>";
    AppendEscaped(out, item.m_strName);
    out += " <SMALL>(";
    AppendEscaped(out, KindText(item));
    out += " <B>";
    AppendNumber(out, number);
    out += "</B>";
}

}  // namespace

void CStructureItem::ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                            int flags) const {
    AppendHtml(out, TotalsOf(tree, entry), flags);
}

void CStructureItem::AppendHtml(std::string& out, const CContainerTotals& totals, int flags) const {
    out += "<DD>";
    if (flags & HTML_IMAGES) {
        if (m_nType == TYPE_ARMY) {
            out += "<IMG SRC=symbol_army.jpg> ";
        } else {
            out += "<IMG SRC=symbol_";
            for (char c : KindText(*this)) {
                out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
            }
            out += ".jpg> ";
        }
    }
    AppendContainerHtml(out, m_strName, totals, flags);
}

void CUnitItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    out += "<DD>";
    if (flags & HTML_IMAGES) {
        out += "<IMG SRC=symbol_unit.jpg> ";
    }
    AppendEscaped(out, m_strName);
    out += " <SMALL>(";
    if (m_pBaseType) {
        AppendEscaped(out, m_pBaseType->m_strName);
    }
    out += " <B>";
    AppendNumber(out, m_pBaseType ? m_pBaseType->m_nMenPerPoint * m_nStrength : 0);
    out += "</B>, Q <B>";
    AppendNumber(out, m_nQuality);
    out += "</B>";
    AppendCost(out, *this, flags);
    out += ")</SMALL>";
}

void CLeaderItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    out += "<DD>";
    if (flags & HTML_IMAGES) {
        out += "<IMG SRC=symbol_leader.jpg> ";
    }
    out += "<I>";
    AppendEscaped(out, m_strName);
    out += "</I> <SMALL>(<B>";
    out += CommandLetter(m_pType ? std::string_view(m_pType->m_strType) : std::string_view());
    out += "</B>, <B>";
    out += GradeLetter(m_nLeadership);
    out += "</B>";
    AppendCost(out, *this, flags);
    out += ")</SMALL>";
}

void CSupplyItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    AppendNamedCount(out, *this, m_nSupply);
    AppendCost(out, *this, flags);
    out += ")</SMALL>";
}

void CGunboatItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    AppendNamedCount(out, *this, m_nStrength);
    out += ", Q <B>";
    AppendNumber(out, m_nQuality);
    out += "</B>";
    AppendCost(out, *this, flags);
    out += ")</SMALL>";
}

// A depot shows no image and no cost, whatever the flags.
void CDepotItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int) const {
    AppendNamedCount(out, *this, m_nSupply);
    out += ")</SMALL>";
}
