#include "pages/OwnPage.h"

void addOwnPage(Variables& vars, const CustomPageClass& page)
{
    vars.Add(u"page_text", page.ContentText);
}
