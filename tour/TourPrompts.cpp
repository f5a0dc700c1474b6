#include "TourPrompts.h"

void TourPrompts::showMessage(const QString& title, const QString& text, PromptIcon /*icon*/)
{
    qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(text));
}

bool TourPrompts::askYesNo(const QString& /*title*/, const QString& /*text*/)
{
    return saysYes;
}

PromptAnswer TourPrompts::askYesNoCancel(const QString& /*title*/, const QString& /*text*/)
{
    return PromptAnswer::No;
}

std::optional<QString> TourPrompts::askText(const QString& /*title*/, const QString& /*prompt*/)
{
    return {};
}

QString TourPrompts::chooseFile(const QString& /*folder*/, const QString& /*filter*/)
{
    return {};
}

std::optional<int> TourPrompts::chooseColour(int /*colour*/)
{
    return {};
}
