// "Select picture". The cell is painted at (10, 10) pixels, so the controls keep to the right of
// the largest cell the strips use (64 x 48 pixels). Positions and sizes are in dialog units.
#include "resources/PictureDialog.h"

#include "resources/ResourceIds.h"

CDialogTemplate MakePictureDialog() {
    using K = ControlKind;
    return CDialogTemplate{
        .id = IDD_PICTURE,
        .caption = "Select picture",
        .cx = 190,
        .cy = 80,
        .controls = {
            {-1, K::GroupBox, 80, 7, 103, 30, "Picture number"},
            // The text names the edit for a screen reader; the number replaces it on opening.
            {IDC_PIC_NUMBER, K::Edit, 110, 19, 46, 12, "Picture number",
             STYLE_DIGITS | STYLE_CENTER},
            {IDC_PIC_PREV, K::Button, 86, 18, 20, 14, "<-"},
            {IDC_PIC_NEXT, K::Button, 159, 18, 20, 14, "->"},
            {IDC_PIC_ACCEPT, K::Button, 80, 43, 50, 14, "Accept"},
            {IDC_PIC_RESET, K::Button, 133, 43, 50, 14, "Reset"},
            {IDC_PIC_CANCEL, K::Button, 133, 59, 50, 14, "Cancel"},
            {IDC_ENTER, K::Button, 80, 59, 17, 14, "+", STYLE_DEFAULT | STYLE_HIDDEN},
        }};
}
