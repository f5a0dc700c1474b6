#include "editors/TextArea.h"

#include "editors/RawText.h"
#include "look/Measures.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int shownLines = 7;
constexpr int leastHeight = 90; // pixels

} // namespace

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setMinimumHeight(leastHeight);
    document()->setDocumentMargin(Measure::Gap - Measure::FieldFrame);
}

QSize TextArea::sizeHint() const
{
    const int lines = shownLines * fontMetrics().lineSpacing() + 2 * static_cast<int>(document()->documentMargin());
    return {QPlainTextEdit::sizeHint().width(), qMax(leastHeight, lines + 2 * frameWidth())};
}

void TextArea::fill(const QString& text)
{
    m_filled = text;
    setPlainText(text);
    document()->setModified(false);
}

QString TextArea::text() const
{
    if (!document()->isModified()) {
        return m_filled;
    }
    return rawText(*document(), m_filled.contains("\r\n"_L1) ? u"\r\n"_s : u"\n"_s);
}
