#include "editors/TextArea.h"

using namespace Qt::StringLiterals;

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setMinimumHeight(90);
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
    // Not toPlainText, which would make blanks of all hard ones.
    QString text = document()->toRawText();
    const QString lineEnd = m_filled.contains("\r\n"_L1) ? u"\r\n"_s : u"\n"_s;
    text.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
    return text.replace(QString(QChar::ParagraphSeparator), lineEnd);
}
