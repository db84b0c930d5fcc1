// All menus, in the order of the menu bar, and the menu for a right click on a ROI.
#include "commands/AllMenus.h"

#include "res/Resource.h"

namespace kestview {

Menus AllMenus() {
    static const Menu bar[] = {FileMenu(),    EditMenu(),      ViewMenu(),    ImageMenu(), RoiMenu(),
                               MeasureMenu(), CalibrateMenu(), DisplayMenu(), ToolsMenu(), HelpMenu()};
    static constexpr ContextEntry roiMenu[] = {
        {ID_EDIT_RENAME},
        {ID_EDIT_DELETE},
        {},
        {ID_IMAGE_REGION},
        {ID_EDIT_COPY, "&Copy Region"},
        {ID_MEASURE_HISTOGRAM},
        {ID_MEASURE_PROFILE},
        {},
        {ID_ROI_SAVE},
        {ID_ROI_RESTORE},
        {},
        {ID_EDIT_SELECT_ALL, "Select A&ll"},
        {ID_EDIT_SELECT_NONE},
    };
    return {bar, roiMenu};
}

}  // namespace kestview
