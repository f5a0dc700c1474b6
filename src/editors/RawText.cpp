#include "editors/RawText.h"

#include <QTextDocument>

QString rawText(const QTextDocument& document, const QString& lineEnd)
{
    // Not toPlainText(), which turns non-breaking blanks into plain ones.
    QString text = document.toRawText();
    text.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
    return text.replace(QChar::ParagraphSeparator, lineEnd);
}
