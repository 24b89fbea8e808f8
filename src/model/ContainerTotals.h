// What the HTML and cost reports show of an army's or structure's subtree.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/TreeStore.h"

struct CContainerTotals {
    double infantry = 0.0;   // men of class 1
    double cavalry = 0.0;    // men of class 2
    double artillery = 0.0;  // men of class 3
    double cost = 0.0;       // every item's cost, the container's own included
};

// The totals of the subtree of entry, as the container's Aggregate gives them.
CContainerTotals TotalsOf(const CTreeStore& tree, HTREEITEM entry);

// The totals of every entry of the tree, in walk order, in one pass: each item's men and cost
// are added, in walk order, to the running totals of every open ancestor, so that every sum is
// formed exactly as Aggregate forms it, without a walk per container.
std::vector<CContainerTotals> AllTotals(const CTreeStore& tree);

// "<BIG><B><U>name</U></B></BIG> <SMALL>(totals)</SMALL>": the part of a container's HTML after
// its image.
void AppendContainerHtml(std::string& out, std::string_view name, const CContainerTotals& totals,
                         int flags);
