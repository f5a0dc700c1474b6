// From the name of a page to its text: which variables the page has, poured into the template of that name.
#pragma once

#include "pages/PageContext.h"
#include "pages/PageObject.h"
#include "template_engine/Variables.h"

#include <QString>
#include <QStringView>

// The variables of a page. The names are "main", "menu", "category", "product", "custompage", "footer", "header",
// "search", "cart" and "checkout", exact case; any other name has the two variables of all pages and no more. Error 91
// or 13 when the page needs an object and it is missing or of another type; others as for what the page reads.
Variables pageVariables(const PageContext& context, const QString& pageName, const PageObject& pageObject);

// The expanded text of one page. Error 5 when the templates have no page of that name, others as for pageVariables and
// Template::Get_String.
QString RenderPage(const PageContext& context, const QString& pageName, const PageObject& pageObject);
