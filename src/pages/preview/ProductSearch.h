// The search of the shop: which texts contain a word, both in the upper case of QString::toUpper, so that "strasse"
// finds "Straße". Made for one run over the catalogue; it upper-cases every text into one buffer that it keeps, which
// is several times faster than a new text for each.
#pragma once

#include <QString>
#include <QStringMatcher>
#include <QStringView>

#include <vector>

class ProductSearch
{
public:
    explicit ProductSearch(const QString& what);

    // True when the text contains the word. An empty word is contained in every text but an empty one.
    bool isIn(const QString& text);

private:
    QStringView upperCase(QStringView text);
    char16_t upperCaseOf(char16_t unit);

    QStringMatcher m_matcher;
    bool m_findsAll;
    std::vector<char16_t> m_buffer;
    std::vector<char16_t> m_known; // upper case of the units outside ASCII that were met so far
};
