// "Select template to add" and "Save new template". Positions and sizes are in dialog units.
#include "resources/TemplateDialogs.h"

#include "resources/ResourceIds.h"

namespace {
using K = ControlKind;
}  // namespace

CDialogTemplate MakeTemplateSelectDialog() {
    return CDialogTemplate{
        .id = IDD_TEMPLATE_SELECT,
        .caption = "Select template to add",
        .cx = 250,
        .cy = 170,
        .controls = {
            {-1, K::Static, 7, 9, 40, 8, "Country"},
            {IDC_TPL_COUNTRY, K::ComboBox, 50, 7, 130, 80, ""},
            {-1, K::Static, 7, 25, 40, 8, "Type"},
            {IDC_TPL_KIND, K::ComboBox, 50, 23, 130, 80, ""},
            {-1, K::Static, 7, 41, 40, 8, "Templates"},
            {IDC_CHOICE_LIST, K::ListBox, 50, 39, 130, 104, ""},
            {-1, K::Static, 7, 151, 40, 8, "Cost"},
            {IDC_TPL_COST, K::Edit, 50, 149, 70, 12, "", STYLE_READONLY | STYLE_RIGHT},
            {IDC_CHOICE_CANCEL, K::Button, 193, 7, 50, 14, "Cancel", STYLE_DEFAULT},
            {IDC_CHOICE_ACCEPT, K::Button, 193, 25, 50, 14, "Accept"},
        }};
}

CDialogTemplate MakeTemplateSaveDialog() {
    return CDialogTemplate{
        .id = IDD_TEMPLATE_SAVE,
        .caption = "Save new template",
        .cx = 280,
        .cy = 90,
        .controls = {
            {-1, K::Static, 7, 9, 40, 8, "Country"},
            {IDC_TPL_COUNTRY, K::ComboBox, 50, 7, 130, 80, ""},
            {-1, K::Static, 7, 25, 40, 8, "Type"},
            {IDC_TPL_TYPE, K::Edit, 50, 23, 130, 12, "", STYLE_READONLY},
            {-1, K::Static, 7, 41, 40, 8, "Cost"},
            {IDC_TPL_COST, K::Edit, 50, 39, 70, 12, "", STYLE_READONLY | STYLE_RIGHT},
            {-1, K::Static, 7, 57, 40, 8, "Name"},
            {IDC_TPL_NAME, K::Edit, 50, 55, 223, 12, ""},
            {IDC_CHOICE_CANCEL, K::Button, 223, 7, 50, 14, "Cancel", STYLE_DEFAULT},
            {IDC_CHOICE_ACCEPT, K::Button, 223, 25, 50, 14, "Accept"},
        }};
}
