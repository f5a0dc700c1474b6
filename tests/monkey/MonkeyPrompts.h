// Answers every question at random and takes note of it.
#pragma once

#include "Dice.h"
#include "base/UserPrompts.h"

class Playground;

class MonkeyPrompts : public UserPrompts
{
public:
    MonkeyPrompts(Dice& dice, Playground& playground, bool isCareful)
        : m_dice(dice), m_playground(playground), m_isCareful(isCareful)
    {
    }

    void showMessage(const QString& title, const QString& text, PromptIcon icon) override;
    bool askYesNo(const QString& title, const QString& text) override;
    PromptAnswer askYesNoCancel(const QString& title, const QString& text) override;
    std::optional<QString> askText(const QString& title, const QString& prompt) override;
    QString chooseFile(const QString& folder, const QString& filter) override;
    std::optional<int> chooseColour(int colour) override;

    // At a start; the answer was yes.
    bool wasOfferedUnsaved = false;

private:
    Dice& m_dice;
    Playground& m_playground;
    bool m_isCareful;
};
