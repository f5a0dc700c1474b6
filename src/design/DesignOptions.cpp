#include "design/DesignOptions.h"

#include "base/RuntimeError.h"
#include "base/WholeNumbers.h"

#include <algorithm>
#include <array>

#define TARNWICK_OPTION_ROW(group, name, defaultText)                                                                  \
    DesignOptionRow{DesignGroup::group, DesignOption::name, #name, QStringLiteral(#name), QStringLiteral(defaultText)},

std::span<const DesignOptionRow> designOptionTable()
{
    static const std::array<DesignOptionRow, DesignOptionCount> table = {TARNWICK_DESIGN_OPTIONS(TARNWICK_OPTION_ROW)};
    return table;
}

#undef TARNWICK_OPTION_ROW

std::span<const DesignOptionRow> designOptionsOf(DesignGroup group)
{
    const std::span<const DesignOptionRow> table = designOptionTable();
    const auto isOfGroup = [group](const DesignOptionRow& row) { return row.group == group; };
    const auto first = std::find_if(table.begin(), table.end(), isOfGroup);
    const auto last = std::find_if_not(first, table.end(), isOfGroup);
    return {first, last};
}

bool isYes(QStringView word)
{
    return word == u"Yes";
}

std::optional<DesignOption> designOptionByName(QStringView name)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        if (row.name == name) {
            return row.option;
        }
    }
    return {};
}

QString NormaliseLimit(const QString& text)
{
    try {
        return QString::number(int16FromText(text));
    } catch (const RuntimeError&) {
        return QStringLiteral("0");
    }
}
