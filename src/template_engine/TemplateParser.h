// Parses the text of a template into its elements. Template::Parse uses it; a failure tells its place, so that an
// editor can point at it.
#pragma once

#include "base/RuntimeError.h"
#include "template_engine/Template_Element.h"

#include <QString>
#include <QStringView>

// A text that is no template: ErrorNumber::InvalidArgument for a tag or block that is not closed, Overflow for one that
// ends too far from the start of its text. The description says in words what is wrong.
class TemplateError : public RuntimeError
{
public:
    TemplateError(ErrorNumber number, const QString& description, qsizetype position)
        : RuntimeError(number, description), m_position(position)
    {
    }

    // Where the tag at fault begins: 0-based, from the start of the template's text.
    qsizetype position() const { return m_position; }

private:
    qsizetype m_position;
};

// The elements of a text, with their spare slot. The text is the whole template or a block's body; position is where it
// begins in the template, 0-based, and serves the failure only. Raises TemplateError.
ElementArray parse_text(QStringView text, qsizetype position = 0);
