#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

using enum DesignOption;

namespace {

constexpr DesignOption headerOptions[] = {
    Header_ShowLogo,
    Header_ShowMenu,
    Header_IncludeSearchBoxTextField,
    Header_IncludeSearchBoxButton,
    Header_ShowSoppingCartButton,
};

} // namespace

void addHeaderPage(Variables& vars, const PageContext& context, const PageObject&)
{
    const ShopDesignClass& design = context.design();
    addSlotVariables(vars, context, ImageSlot::HeaderLogo);
    addSlotVariables(vars, context, ImageSlot::HeaderSearchButton);
    addSlotVariables(vars, context, ImageSlot::HeaderShoppingCartButton);
    AddCustomPageList(vars, context, *design.Pages(PageSelection::HeaderCustomPageSelected));
    addOptions(vars, design, headerOptions);
}
