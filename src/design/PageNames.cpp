#include "design/PageNames.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// '&' ends the name in the address, '#' what a server is sent of it, '"' the address itself; '\\' becomes '/', '%'
// begins an escape, and browsers escape the others, which the shop does not undo. '<' begins markup in the link's text,
// too.
bool breaksALink(QChar character)
{
    return u"&#\"\\%<>^`{|}"_s.contains(character) || character < u' ' || character == u'\u007f';
}

// A browser walks "/./" and "/../" before it asks for an address, up to its '?'. Behind that it escapes apostrophes.
bool changesOnItsWay(const QString& name)
{
    const QStringList steps = name.section(u'?', 0, 0).split(u'/');
    return std::any_of(steps.begin() + 1, steps.end(),
                       [](const QString& step) { return step == u"."_s || step == u".."_s; }) ||
           name.section(u'?', 1).contains(u'\'');
}

} // namespace

bool linkCarries(const QString& name)
{
    return !name.isEmpty() && std::none_of(name.begin(), name.end(), breaksALink) && !changesOnItsWay(name) &&
           !name.endsWith(u' ') && !name.contains("addtoshopcart"_L1);
}
