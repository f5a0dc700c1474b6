#include "template_engine/Template.h"

#include "template_engine/TemplateParser.h"

#include <utility>

void Template::Parse()
{
    ElementArray parts = parse_text(template_text);
    m_steps = ExpansionSteps(parts, *m_names);
    m_parts = std::move(parts);
}

QString Template::Get_String(const Variables& vars) const
{
    Q_ASSERT_X(&vars.names() == m_names, "Template::Get_String", "the variables work on another table of names");
    TextOutput out;
    m_steps.run(vars, out);
    return out.take();
}
