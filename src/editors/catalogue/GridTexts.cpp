#include "editors/catalogue/GridTexts.h"

std::shared_ptr<TextCollection> rekeyed(const TextCollection& texts, const char* prefix)
{
    auto keyed = std::make_shared<TextCollection>();
    for (const QString& text : texts) {
        keyed->Add(text, QLatin1String(prefix) + QString::number(keyed->Count()));
    }
    return keyed;
}
