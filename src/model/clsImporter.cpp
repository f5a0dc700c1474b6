#include "model/clsImporter.h"

#include "base/Circumstances.h"
#include "base/TextFile.h"
#include "model/CatalogueImport.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int linesBetweenReports = 500;
constexpr qsizetype usualFields = 3;

qsizetype lineEnd(const QString& text, qsizetype from)
{
    const auto end =
        std::find_if(text.begin() + from, text.end(), [](QChar letter) { return letter == u'\r' || letter == u'\n'; });
    return end - text.begin();
}

} // namespace

QStringList clsImporter::PSplit(QStringView line)
{
    bool inField = false;
    qsizetype start = 0;    // of the field
    qsizetype trailing = 0; // characters at its end that do not belong to it
    QStringList fields;
    fields.reserve(usualFields);
    const auto append = [&](qsizetype end) {
        fields.append(line.sliced(start, end - start - trailing).toString());
        trailing = 0;
        start = end + 1;
        inField = false;
    };

    for (qsizetype at = 0; at < line.size(); ++at) {
        const QChar letter = line[at];
        if (letter == u' ') {
            trailing += inField ? 1 : 0;
        } else if (letter == u'"') {
            if (!inField) {
                inField = true;
                start = at + 1;
                const qsizetype closing = line.indexOf(u'"', start);
                trailing = closing < 0 ? 0 : 1;
                at = closing < 0 ? line.size() : closing;
            }
        } else if (letter == u',') {
            if (!inField) {
                start = at; // only blanks stand here, and they make an empty field
            }
            append(at);
        } else {
            trailing = 0;
            inField = true;
        }
    }
    append(line.size());
    return fields;
}

void clsImporter::Import(const QString& fileName)
{
    productCount = 0;
    line = 0;
    const QString text = readTextFile(fileName).text;
    CatalogueImport catalogue(currentShop(m_session.services));
    const auto inWords = [&] {
        return u"Line %1 of the import file %2 was being read."_s.arg(line).arg(
            inQuotes(QFileInfo(fileName).fileName()));
    };
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype end = lineEnd(text, at);
        ++line;
        during(inWords, [&] {
            QStringList fields = PSplit(QStringView(text).sliced(at, end - at));
            catalogue.addProduct(fields);
            ++productCount;
        });
        at = end + (QStringView(text).mid(end, 2) == u"\r\n" ? 2 : 1);
        if (m_progress && line % linesBetweenReports == 0) {
            m_progress(at, text.size());
        }
    }
}
