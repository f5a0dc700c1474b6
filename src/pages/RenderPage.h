// From the name of a page to its text: which variables the page has, poured into the template of that name.
#pragma once

#include "pages/PageContext.h"
#include "pages/PageObject.h"
#include "template_engine/Variables.h"

#include <QString>
#include <QStringView>

// The variables of a page. The names are those of the table of pages, exact case; a name without a filler has the two
// variables of all pages and no more. Errors as for the page's filler.
Variables pageVariables(const PageContext& context, const QString& pageName, const PageObject& pageObject);

// The expanded text of one page. ErrorNumber::InvalidArgument when the templates have no page of that name, others as
// for pageVariables and Template::Get_String.
QString RenderPage(const PageContext& context, const QString& pageName, const PageObject& pageObject);
