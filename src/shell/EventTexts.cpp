#include "shell/EventTexts.h"

#include "backup/BackUpCommands.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

// "1 product", "2 products": the word in the singular.
QString counted(qsizetype count, const QString& word)
{
    return QLocale().toString(count) + u' ' + word + (count == 1 ? QString() : u"s"_s);
}

} // namespace

QString EventTexts::saved(const QTime& time)
{
    return u"Saved "_s + QLocale().toString(time, u"HH:mm"_s);
}

QString EventTexts::imported(int products)
{
    return counted(products, u"product"_s) + u" imported"_s;
}

QString EventTexts::notUnderstood(int line)
{
    return u"Line %1 of the import is not understood"_s.arg(QLocale().toString(line));
}

QString EventTexts::backedUp(const BackUpReport& report)
{
    const QString size = QLocale().formattedDataSize(report.size, 1, QLocale::DataSizeSIFormat);
    QString text = u"Backup %1, %2"_s.arg(report.fileName, size);
    if (report.leftOut > 0) {
        text += u", "_s + counted(report.leftOut, u"file"_s) + u" left out"_s;
    }
    return text;
}
