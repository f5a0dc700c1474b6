// One page template: its text, and what was made of the text by Parse. One parsed template serves any number of
// expansions; expanding changes nothing in it. The set of templates owns those of the shop.
#pragma once

#include "template_engine/ExpansionSteps.h"
#include "template_engine/Template_Element.h"
#include "template_engine/Variables.h"

#include <QString>

class Template
{
public:
    // The table of names, which the Variables of an expansion must share; it must outlive the template.
    explicit Template(NameTable& names) : m_names(&names) {}

    // The source. Writing it does not parse it.
    QString template_text;

    // Makes the elements of template_text. A TemplateError leaves the old elements in place.
    void Parse();

    // The elements in the order of the source, with their spare slot; those of a template that was never parsed have
    // none.
    const ElementArray& parts() const { return m_parts; }

    // The text of the template with these values. ErrorNumber::TypeMismatch for a list in a value tag or in a
    // comparison, and for a cycle over what is no list. A template that was never parsed gives nothing.
    QString Get_String(const Variables& vars) const;

    static bool ItemExists(const Variables& vars, QStringView key) { return vars.exists(key); }

private:
    NameTable* m_names;
    ElementArray m_parts;
    ExpansionSteps m_steps; // of m_parts
};
