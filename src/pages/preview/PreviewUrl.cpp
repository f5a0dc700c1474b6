#include "pages/preview/PreviewUrl.h"

#include "pages/TemplateUtils.h"

#include <QUrl>

using namespace Qt::StringLiterals;

QString serverHost()
{
    return QUrl(serverAddress()).host();
}

QString GetUrlParam(const QString& text, const QString& key, const QString& defaultText)
{
    const qsizetype start = text.indexOf(key + u'=');
    if (start < 0) {
        return defaultText;
    }
    const qsizetype value = start + key.size() + 1;
    const qsizetype end = text.indexOf(u'&', start);
    return text.sliced(value, (end < 0 ? text.size() : end) - value);
}

QString DecodeUrlText(const QString& text)
{
    QString decoded = text;
    return decoded.replace("%20"_L1, " "_L1).replace("%2C"_L1, "."_L1);
}
