// A tour runs with nobody to press a button: boxes go to the standard error stream, and questions get the answer that
// the walk has set.
#pragma once

#include "base/UserPrompts.h"

class TourPrompts : public UserPrompts
{
public:
    bool saysYes = false;

    void showMessage(const QString& title, const QString& text, PromptIcon icon) override;
    bool askYesNo(const QString& title, const QString& text) override;
    PromptAnswer askYesNoCancel(const QString& title, const QString& text) override;
    std::optional<QString> askText(const QString& title, const QString& prompt) override;
    QString chooseFile(const QString& folder, const QString& filter) override;
    std::optional<int> chooseColour(int colour) override;
};
