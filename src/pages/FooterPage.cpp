#include "pages/PageFillers.h"
#include "pages/TemplateUtils.h"

using enum DesignOption;

void addFooterPage(Variables& vars, const PageContext& context, const PageObject&)
{
    const ShopDesignClass& design = context.design();
    vars.Add(u"COPYRIGHT_TEXT", design.Option(Footer_CopyrightText));
    vars.Add(u"Footer_ShowMenu", design.Option(Footer_ShowMenu));
    AddCustomPageList(vars, context, *design.Pages(PageSelection::FooterCustomPageSelected));
}
