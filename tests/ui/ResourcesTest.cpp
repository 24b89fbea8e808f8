// Menu 129's captions and commands in order, as the program's users know them.
#include <gtest/gtest.h>

#include "resources/ResourceIds.h"
#include "resources/Resources.h"

namespace {
// The menu flattened: "caption id" for a command, "caption[...]" for a submenu, "-" for a
// separator, entries separated by ";".
std::string Flatten(const std::vector<CMenuItem>& items) {
    std::string out;
    for (const CMenuItem& item : items) {
        out += out.empty() ? "" : ";";
        out += item.IsSeparator() ? "-"
               : item.IsPopup()   ? item.text + "[" + Flatten(item.popup) + "]"
                                  : item.text + " " + std::to_string(item.id);
    }
    return out;
}

TEST(Resources, Menu129HasEveryCaptionAndCommandInOrder) {
    EXPECT_EQ(
        Flatten(MenuResource(IDR_MAINMENU).items),
        "&File[&New[&Empty OOB 32771;&Attached OOB 32798;Exi&sting OOB 32772];-;&Load 32773;"
        "&Save 32774;Save &as... 32775;-;&Properties 32776;-;E&xit 32777];"
        "&Edit[&Properties 32793;-;&Copy 32805;Cu&t 32812;-;"
        "Add &next[&Unit 32799;&Leader 32800;&Supply 32801;St&ructure 32802;-;&Paste 32803;-;"
        "&Template 32804];"
        "Add &child[&Unit 32806;&Leader 32807;&Supply 32808;St&ructure 32809;-;&Paste 32810;-;"
        "&Template 32811];"
        "-;&Delete[This &item 32796;&Child items 32797];-;&Save to file 32813;"
        "Save as template 32783];"
        "&Options[Armies summary 32816;-;&Find item 32779;-;&Backup[Save OOB 32780;"
        "Restore OOB 32781];-;&Get data 32814;-;&Save Target file 32815];"
        "&Reports[&HTML 32788;-;&Leader 32790;&Cost 32791;&Key 32789];&About 32778");
    EXPECT_EQ(MenuResource(IDR_MAINMENU).GetSubMenu(kEditMenuPosition).text, "&Edit");
}
}  // namespace
