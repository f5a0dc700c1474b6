#include "pages/PageFillers.h"

void addCustomPage(Variables& vars, const PageContext&, const PageObject& object)
{
    vars.Add(u"page_text", pageObjectAs<CustomPageClass>(object).ContentText);
}
