// The elements of a template laid out for speed: one flat row of steps, the names of variables interned, the text ahead
// of a tag in the tag's own step. Made by Template::Parse; the elements stay what a template is, the steps say the
// same.
#pragma once

#include "template_engine/NameTable.h"
#include "template_engine/Template_Element.h"
#include "template_engine/TextOutput.h"
#include "template_engine/Variables.h"

#include <QString>

#include <vector>

class ExpansionSteps
{
public:
    ExpansionSteps() = default;
    ExpansionSteps(const ElementArray& elements, NameTable& names);

    // Writes the text of all elements with these values, which share the table of names. ErrorNumber::TypeMismatch for
    // a list in a value tag or in a comparison, and for a cycle over what is no list.
    void run(const Variables& vars, TextOutput& out) const { run(vars, 0, m_steps.size(), out); }

private:
    enum class Action : quint8 { None, Value, If, IfNot, Cycle };

    struct Step
    {
        QString text;  // is written first
        QString value; // fallback or comparison value
        NameId name = NoName;
        Action action = Action::None;
        std::size_t end = 0; // of a block: the first step behind its body
    };

    static Action actionOf(qint16 type);
    void append(const ElementArray& elements, NameTable& names);
    void run(const Variables& vars, std::size_t from, std::size_t to, TextOutput& out) const;

    std::vector<Step> m_steps;
};
