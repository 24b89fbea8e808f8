// "Edit structure" and "Structure summary". Positions and sizes are in dialog units.
#include "resources/StructureDialogs.h"

#include <array>

#include "resources/ResourceIds.h"

namespace {
using K = ControlKind;

constexpr unsigned kFigure = STYLE_RIGHT | STYLE_SUNKEN;
constexpr std::array<const char*, 5> kArms = {"Leaders", "Infantry", "Cavalry", "Artillery",
                                              "Supply"};

void AddLabel(std::vector<CControlTemplate>& controls, int x, int y, int cx, const char* text) {
    controls.push_back({-1, K::Static, x, y + 2, cx, 8, text});
}

void AddFigure(std::vector<CControlTemplate>& controls, int id, int x, int y, int cx) {
    controls.push_back({id, K::Static, x, y, cx, 12, "", kFigure});
}
}  // namespace

CDialogTemplate MakeStructureDialog() {
    constexpr int kLabelX = 7;
    constexpr int kFieldX = 62;
    constexpr int kCostX = 126;
    std::vector<CControlTemplate> controls;
    AddLabel(controls, kLabelX, 7, 52, "Name");
    controls.push_back({IDC_ITEM_NAME, K::Edit, kFieldX, 7, 151, 12});
    AddLabel(controls, kLabelX, 23, 52, "Type");
    controls.push_back({IDC_STRUCT_KIND, K::Static, kFieldX, 23, 151, 12, "", STYLE_SUNKEN});
    AddLabel(controls, kLabelX, 39, 52, "Cost modifier");
    AddFigure(controls, IDC_ITEM_MODIFIER, kFieldX, 39, 56);
    AddLabel(controls, kCostX, 39, 24, "Cost");
    AddFigure(controls, IDC_ITEM_COST, 152, 39, 61);
    AddLabel(controls, kLabelX, 55, 52, "Total cost");
    AddFigure(controls, IDC_STRUCT_TOTAL, kFieldX, 55, 56);
    AddLabel(controls, kFieldX, 71, 56, "Strength");
    AddLabel(controls, kCostX, 71, 87, "Partial cost");
    constexpr std::array<int, 5> kStrengths = {IDC_STRUCT_LEADERS, IDC_STRUCT_INFANTRY,
                                               IDC_STRUCT_CAVALRY, IDC_STRUCT_ARTILLERY,
                                               IDC_STRUCT_SUPPLY};
    constexpr std::array<int, 5> kCosts = {IDC_STRUCT_LEADERS_COST, IDC_STRUCT_INFANTRY_COST,
                                           IDC_STRUCT_CAVALRY_COST, IDC_STRUCT_ARTILLERY_COST,
                                           IDC_STRUCT_SUPPLY_COST};
    for (std::size_t row = 0; row < kArms.size(); ++row) {
        const int y = 84 + 16 * static_cast<int>(row);
        AddLabel(controls, kLabelX, y, 52, kArms[row]);
        AddFigure(controls, kStrengths[row], kFieldX, y, 56);
        AddFigure(controls, kCosts[row], kCostX, y, 87);
    }
    controls.push_back({IDC_STRUCT_SUMMARY, K::Button, kLabelX, 168, 70, 14, "Statistical data"});
    constexpr int kButtons = 188;
    controls.push_back({IDC_ITEM_ACCEPT, K::Button, kLabelX, kButtons, 50, 14, "Accept"});
    controls.push_back({IDC_ITEM_RESET, K::Button, 62, kButtons, 50, 14, "Reset"});
    controls.push_back({IDC_ITEM_CANCEL, K::Button, 163, kButtons, 50, 14, "Cancel"});
    controls.push_back(
        {IDC_ENTER, K::Button, kLabelX, kButtons, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN});
    return CDialogTemplate{.id = IDD_STRUCTURE,
                           .caption = "Edit structure",
                           .cx = 220,
                           .cy = kButtons + 21,
                           .controls = std::move(controls)};
}

// Each row's bar lies in a track as wide and high as the frame the bars are measured against
// (the Leaders row's track is that frame), so a full bar fills its track. The name comes first
// in the tab order, so that Enter on opening presses the default Accept rather than an arrow;
// the arrows sit on the name's row, after its label, so a screen reader hears them with it.
CDialogTemplate MakeSummaryDialog() {
    constexpr int kShareX = 55;
    constexpr int kTrackX = 99;
    constexpr int kTrackWidth = 100;
    constexpr int kEffectiveX = 203;
    constexpr int kOfBaseX = 252;
    std::vector<CControlTemplate> controls;
    AddLabel(controls, 7, 8, 40, "Structure");
    controls.push_back({IDC_SUM_NAME, K::Edit, 50, 8, 150, 12, "", STYLE_READONLY | STYLE_CENTER});
    controls.push_back({IDC_SUM_PREV, K::Button, 204, 7, 20, 14, "<-"});
    controls.push_back({IDC_SUM_NEXT, K::Button, 228, 7, 20, 14, "->"});
    AddLabel(controls, kShareX, 26, 40, "Share");
    AddLabel(controls, kTrackX, 26, kTrackWidth, "Share of cost");
    AddLabel(controls, kEffectiveX, 26, 45, "Effective");
    AddLabel(controls, kOfBaseX, 26, 40, "% of base");
    struct Row {
        int share, bar, effective, ofBase;
    };
    constexpr std::array<Row, 5> kRows = {{
        {IDC_SUM_LEADERS_SHARE, IDC_SUM_LEADERS_BAR, IDC_SUM_LEADERS_EFFECTIVE,
         IDC_SUM_LEADERS_OF_BASE},
        {IDC_SUM_INFANTRY_SHARE, IDC_SUM_INFANTRY_BAR, IDC_SUM_INFANTRY_EFFECTIVE,
         IDC_SUM_INFANTRY_OF_BASE},
        {IDC_SUM_CAVALRY_SHARE, IDC_SUM_CAVALRY_BAR, IDC_SUM_CAVALRY_EFFECTIVE,
         IDC_SUM_CAVALRY_OF_BASE},
        {IDC_SUM_ARTILLERY_SHARE, IDC_SUM_ARTILLERY_BAR, IDC_SUM_ARTILLERY_EFFECTIVE,
         IDC_SUM_ARTILLERY_OF_BASE},
        {IDC_SUM_SUPPLY_SHARE, IDC_SUM_SUPPLY_BAR, -1, -1},
    }};
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const int y = 40 + 16 * static_cast<int>(i);
        AddLabel(controls, 7, y, 45, kArms[i]);
        AddFigure(controls, kRows[i].share, kShareX, y, 40);
        controls.push_back(
            {i == 0 ? IDC_SUM_FRAME : -1, K::Frame, kTrackX, y, kTrackWidth, 12, ""});
        controls.push_back({kRows[i].bar, K::Bar, kTrackX, y, kTrackWidth, 12, "", STYLE_HIDDEN});
        if (kRows[i].effective != -1) {
            AddFigure(controls, kRows[i].effective, kEffectiveX, y, 45);
            AddFigure(controls, kRows[i].ofBase, kOfBaseX, y, 40);
        }
    }
    controls.push_back({IDC_SUM_ACCEPT, K::Button, 242, 124, 50, 14, "Accept", STYLE_DEFAULT});
    return CDialogTemplate{.id = IDD_SUMMARY,
                           .caption = "Structure summary",
                           .cx = 299,
                           .cy = 145,
                           .controls = std::move(controls)};
}
