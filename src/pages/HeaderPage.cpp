#include "pages/HeaderPage.h"

#include "pages/TemplateUtils.h"

using enum DesignOption;

namespace {

constexpr DesignOption Options[] = {
    Header_ShowLogo,
    Header_ShowMenu,
    Header_IncludeSearchBoxTextField,
    Header_IncludeSearchBoxButton,
    Header_ShowSoppingCartButton,
};

} // namespace

void AddHeaderPage(Variables& vars, const PageContext& context)
{
    const ShopDesignClass& design = context.design();
    AddSlotVariables(vars, context, ImageSlot::HeaderLogo);
    AddSlotVariables(vars, context, ImageSlot::HeaderSearchButton);
    AddSlotVariables(vars, context, ImageSlot::HeaderShoppingCartButton);
    AddCustomPageList(vars, context, *design.Pages(PageSelection::HeaderCustomPageSelected));
    AddOptions(vars, design, Options);
}
