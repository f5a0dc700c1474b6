// Sets of names, as the tests of documents compare and show them.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <string>

using Names = QSet<QString>;

inline std::string sortedText(const Names& names)
{
    QStringList sorted(names.begin(), names.end());
    sorted.sort();
    return sorted.join(QStringLiteral(", ")).toStdString();
}
