#include "pages/OwnPage.h"

void AddOwnPage(Variables& vars, const CustomPageClass& page)
{
    vars.Add(u"page_text", page.ContentText);
}
