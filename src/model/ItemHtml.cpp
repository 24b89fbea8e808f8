// The HTML fragment of each item kind: one line of the HTML report.
#include <cctype>

#include "base/HtmlText.h"
#include "base/LineWriter.h"
#include "base/NumberText.h"
#include "base/TextLines.h"
#include "gamedata/GameRecords.h"
#include "model/ContainerItems.h"
#include "model/ContainerTotals.h"
#include "model/GunboatItem.h"
#include "model/LeaderItem.h"
#include "model/SupplyItem.h"
#include "model/UnitItem.h"

namespace {

std::string_view KindText(const COobItem& item) {
    return item.m_pKind ? std::string_view(item.m_pKind->m_strName) : std::string_view();
}

// Each fragment is written by one line writer, grown by an upper bound of what it can take: the
// fixed tags (never more than kTagsRoom), the texts escaped, the numbers.
constexpr std::size_t kTagsRoom = 96;
constexpr std::size_t kCostRoom = kGeneralRoom;

void WriteCost(CLineWriter& line, const COobItem& item, int flags) {
    if (flags & HTML_COSTS) {
        line.Text(", Cost <B>").General(item.Cost()).Text("</B>");
    }
}

// name <SMALL>(kind text <B>number</B>, then what write adds, then ")</SMALL>"
template <typename Write>
void AppendNamedCount(std::string& out, const COobItem& item, std::int32_t number, Write write) {
    const std::string_view kind = KindText(item);
    CLineWriter line(out, kTagsRoom + kEscapedRoom * (item.m_strName.size() + kind.size()) +
                              2 * CLineWriter::kNumberRoom + kCostRoom);
    line.Text("<DD>").Escaped(item.m_strName).Text(" <SMALL>(").Escaped(kind);
    line.Text(" <B>").Number(number).Text("</B>");
    write(line);
    line.Text(")</SMALL>");
}

}  // namespace

void CStructureItem::ToHtml(std::string& out, const CTreeStore& tree, HTREEITEM entry,
                            int flags) const {
    AppendHtml(out, TotalsOf(tree, entry), flags);
}

void CStructureItem::AppendHtml(std::string& out, const CContainerTotals& totals, int flags) const {
    const std::string_view kind = KindText(*this);
    {
        CLineWriter line(out, kTagsRoom + kind.size());
        line.Text("<DD>");
        if (flags & HTML_IMAGES) {
            if (m_nType == TYPE_ARMY) {
                line.Text("<IMG SRC=symbol_army.jpg> ");
            } else {
                line.Text("<IMG SRC=symbol_");
                for (char c : kind) {
                    line.Char(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
                }
                line.Text(".jpg> ");
            }
        }
    }
    AppendContainerHtml(out, m_strName, totals, flags);
}

void CUnitItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    const std::string_view base = m_pBaseType ? std::string_view(m_pBaseType->m_strName) : "";
    CLineWriter line(out, kTagsRoom + kEscapedRoom * (m_strName.size() + base.size()) +
                              2 * CLineWriter::kNumberRoom + kCostRoom);
    line.Text("<DD>");
    if (flags & HTML_IMAGES) {
        line.Text("<IMG SRC=symbol_unit.jpg> ");
    }
    line.Escaped(m_strName).Text(" <SMALL>(").Escaped(base).Text(" <B>");
    line.Number(m_pBaseType ? m_pBaseType->m_nMenPerPoint * m_nStrength : 0);
    line.Text("</B>, Q <B>").Number(m_nQuality).Text("</B>");
    WriteCost(line, *this, flags);
    line.Text(")</SMALL>");
}

void CLeaderItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    CLineWriter line(out, kTagsRoom + kEscapedRoom * m_strName.size() + kCostRoom);
    line.Text("<DD>");
    if (flags & HTML_IMAGES) {
        line.Text("<IMG SRC=symbol_leader.jpg> ");
    }
    line.Text("<I>").Escaped(m_strName).Text("</I> <SMALL>(<B>");
    line.Char(CommandLetter(m_pType ? std::string_view(m_pType->m_strType) : std::string_view()));
    line.Text("</B>, <B>").Char(GradeLetter(m_nLeadership)).Text("</B>");
    WriteCost(line, *this, flags);
    line.Text(")</SMALL>");
}

void CSupplyItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    AppendNamedCount(out, *this, m_nSupply,
                     [this, flags](CLineWriter& line) { WriteCost(line, *this, flags); });
}

void CGunboatItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int flags) const {
    AppendNamedCount(out, *this, m_nStrength, [this, flags](CLineWriter& line) {
        line.Text(", Q <B>").Number(m_nQuality).Text("</B>");
        WriteCost(line, *this, flags);
    });
}

// A depot shows no image and no cost, whatever the flags.
void CDepotItem::ToHtml(std::string& out, const CTreeStore&, HTREEITEM, int) const {
    AppendNamedCount(out, *this, m_nSupply, [](CLineWriter&) {});
}
