// The prompts of a program that nobody sits in front of: boxes vanish, questions are answered with No or not at all.
#pragma once

#include "base/UserPrompts.h"

class NoPrompts : public UserPrompts
{
public:
    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override {}
    bool askYesNo(const QString& /*title*/, const QString& /*text*/) override { return false; }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override { return PromptAnswer::No; }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override { return {}; }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return {}; }
    std::optional<int> chooseColour(int /*colour*/) override { return {}; }
};
