#include "editors/NumericBox.h"

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/WholeNumbers.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

// The shop file and the cart would take such a mark for the decimal one.
bool hasMarkBetweenThousands(const QString& number)
{
    QLocale plain;
    plain.setNumberOptions(plain.numberOptions() | QLocale::RejectGroupSeparator);
    bool isPlain = false;
    plain.toDouble(number.trimmed(), &isPlain);
    return !isPlain;
}

} // namespace

NumericBox::NumericBox(Takes takes, QWidget* parent) : QLineEdit(parent), m_takes(takes)
{
    setAlignment(Qt::AlignRight);
    setPlaceholderText(takes == Takes::WholeNumber ? u"0"_s : QLocale().toString(0.0, 'f', 2)); // its form
    connect(this, &QLineEdit::textEdited, this, &NumericBox::check);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this](int /*from*/, int to) {
        if (text() == m_accepted) {
            m_cursor = to;
        }
    });
}

void NumericBox::fill(const QString& text)
{
    m_accepted = text;
    setText(text);
}

bool NumericBox::accepts(Takes takes, const QString& text)
{
    if (text.isEmpty()) {
        return true;
    }
    try {
        switch (takes) {
        case Takes::Number:
            numberFromText(text);
            return !hasMarkBetweenThousands(text);
        case Takes::NormalisedNumber:
            numberFromText(NormalizeDecimal(text));
            break;
        case Takes::WholeNumber:
            int16FromText(text);
            break;
        }
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

void NumericBox::check(const QString& text)
{
    if (accepts(m_takes, text)) {
        m_accepted = text;
        m_cursor = cursorPosition();
        Q_EMIT edited(text);
        return;
    }
    const int cursor = m_cursor;
    setText(m_accepted);
    setCursorPosition(cursor);
}
