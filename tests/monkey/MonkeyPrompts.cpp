#include "MonkeyPrompts.h"

#include "Notes.h"
#include "OddTexts.h"
#include "Playground.h"

#include <QStringList>

using namespace Qt::StringLiterals;

void MonkeyPrompts::showMessage(const QString& title, const QString& text, PromptIcon /*icon*/)
{
    note(u"  box \"%1\" \"%2\""_s.arg(title, text));
}

bool MonkeyPrompts::askYesNo(const QString& /*title*/, const QString& text)
{
    if (text.startsWith(u"The program ended before"_s)) {
        wasOfferedUnsaved = true;
        return true;
    }
    const bool answer = m_dice.chance(60);
    note(u"  \"%1\": %2"_s.arg(text, answer ? u"yes"_s : u"no"_s));
    return answer;
}

PromptAnswer MonkeyPrompts::askYesNoCancel(const QString& /*title*/, const QString& text)
{
    const int answer = !m_isCareful && m_dice.chance(4) ? 2 : m_dice.below(2);
    note(u"  \"%1\": %2"_s.arg(text, QStringList{u"yes"_s, u"no"_s, u"cancel"_s}[answer]));
    return static_cast<PromptAnswer>(answer);
}

std::optional<QString> MonkeyPrompts::askText(const QString& /*title*/, const QString& prompt)
{
    std::optional<QString> answer =
        m_dice.chance(10) ? std::nullopt
                          : std::optional(m_isCareful ? u"backup%1"_s.arg(m_dice.below(100)) : oddText(m_dice));
    note(u"  \"%1\": %2"_s.arg(prompt, answer ? shortened(*answer) : u"cancel"_s));
    return answer;
}

QString MonkeyPrompts::chooseFile(const QString& folder, const QString& filter)
{
    QString answer = m_playground.chosenFile(m_dice, filter);
    note(u"  file (%1) (%2): %3"_s.arg(folder, filter, answer));
    return answer;
}

std::optional<int> MonkeyPrompts::chooseColour(int colour)
{
    std::optional<int> answer =
        m_dice.chance(30) ? std::nullopt : std::optional(m_dice.chance(20) ? colour : m_dice.below(0x1000000));
    note(u"  colour: %1"_s.arg(answer ? QString::number(*answer, 16) : u"cancel"_s));
    return answer;
}
