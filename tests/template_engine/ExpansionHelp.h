// What the tests of the template language share: short ways to pour variables into a template text.
#pragma once

#include "support/TestSupport.h"
#include "template_engine/Template.h"
#include "template_engine/TemplateParser.h"
#include "template_engine/Variables.h"

#include <QString>

#include <initializer_list>
#include <utility>

// A page that is being tried: its names, its variables, and templates by the way.
class TryOut
{
public:
    TryOut() : page(names) {}

    QString expand(QStringView text) const { return parsed(text).Get_String(page); }

    Template parsed(QStringView text) const
    {
        Template parsedTemplate(names);
        parsedTemplate.template_text = text.toString();
        parsedTemplate.Parse();
        return parsedTemplate;
    }

    // A row with these texts.
    Variables row(std::initializer_list<std::pair<QStringView, QStringView>> texts) const
    {
        Variables made(names);
        for (const auto& [key, text] : texts) {
            made.Add(key, text.toString());
        }
        return made;
    }

    mutable NameTable names;
    Variables page;
};

inline QString repeated(QStringView text, qsizetype count)
{
    return text.toString().repeated(count);
}
