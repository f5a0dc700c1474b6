#include "template_engine/clsRegExp.h"

#include "base/RuntimeError.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

// The pattern that all pages use is matched by hand: several times as fast as the engine, linear even for a text full
// of "<", and indifferent to broken surrogate pairs, on which the engine gives up.
constexpr QStringView tagPattern = u"<[^>]*>";

QString replaceTags(const QString& text, const QString& replacement)
{
    qsizetype open = text.indexOf(u'<');
    qsizetype close = open < 0 ? -1 : text.indexOf(u'>', open);
    if (close < 0) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    qsizetype copied = 0;
    while (close >= 0) {
        result.append(QStringView(text).sliced(copied, open - copied)).append(replacement);
        copied = close + 1;
        open = text.indexOf(u'<', copied);
        close = open < 0 ? -1 : text.indexOf(u'>', open);
    }
    return result.append(QStringView(text).sliced(copied));
}

// Not QString::replace: it would read "\1" in the replacement.
QString replaceMatches(const QRegularExpression& engine, const QString& text, const QString& replacement)
{
    QString result;
    qsizetype copied = 0;
    QRegularExpressionMatchIterator matches = engine.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result.append(QStringView(text).sliced(copied, match.capturedStart() - copied)).append(replacement);
        copied = match.capturedEnd();
    }
    return result.append(QStringView(text).sliced(copied));
}

QString firstWords(const QString& text, int count)
{
    constexpr qsizetype lastPosition = 32767; // counted from 1, like the cursors of the template language
    int words = 0;
    qsizetype next = 0;
    qsizetype blank = 0;
    while (words < count) {
        blank = text.indexOf(u' ', next);
        if (blank < 0) {
            return text;
        }
        if (blank >= lastPosition) {
            throw RuntimeError(ErrorNumber::Overflow);
        }
        if (blank > next) {
            ++words;
        }
        next = blank + 1;
    }
    return text.first(blank);
}

} // namespace

void clsRegExp::setPattern(const QString& pattern)
{
    m_pattern = pattern;
}

void clsRegExp::Execute(const QString& text)
{
    static_cast<void>(engine().match(text));
}

QString clsRegExp::Replace(const QString& text, const QString& replacement, int count)
{
    const QString result =
        m_pattern == tagPattern ? replaceTags(text, replacement) : replaceMatches(engine(), text, replacement);
    return count <= 0 ? result : firstWords(result, count);
}

const QRegularExpression& clsRegExp::engine()
{
    if (m_engine.pattern() != m_pattern) {
        m_engine.setPattern(m_pattern);
    }
    if (!m_engine.isValid()) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"The pattern \"%1\" is none."_s.arg(m_pattern));
    }
    return m_engine;
}
