// Makes the elements of a template out of its text. Template::Parse uses it; the failure tells its place, so that an
// editor can point at it.
#pragma once

#include "base/RuntimeError.h"
#include "template_engine/Template_Element.h"

#include <QString>
#include <QStringView>

// A text that is no template: error 5 for a tag or block that is not closed, error 6 for one that ends too far from the
// start of its text. The description says in words what is wrong.
class TemplateError : public RuntimeError
{
public:
    TemplateError(ErrorNumber number, const QString& description, qsizetype position)
        : RuntimeError(number, description), m_position(position)
    {
    }

    // Where the tag begins that makes the failure: 0-based, from the start of the template's text.
    qsizetype position() const { return m_position; }

private:
    qsizetype m_position;
};

// The elements of a text, with their spare slot. The text is the whole template or a block's body; position is where it
// begins in the template, 0-based, and serves the failure only. Raises TemplateError.
ElementArray parse_text(QStringView text, qsizetype position = 0);
