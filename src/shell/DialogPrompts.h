// The boxes and dialogs that the user sees. The only caller of the platform's message, input, file and colour dialogs.
#pragma once

#include "base/UserPrompts.h"

class QWidget;

class DialogPrompts : public UserPrompts
{
public:
    // The window that the dialogs belong to from now on, where no dialog is open. Until then they have no parent.
    void setParentWindow(QWidget* window) { m_window = window; }

    void showMessage(const QString& title, const QString& text, PromptIcon icon) override;
    bool askYesNo(const QString& title, const QString& text) override;
    bool askYesNoWithDefaultNo(const QString& title, const QString& text) override;
    PromptAnswer askYesNoCancel(const QString& title, const QString& text) override;
    std::optional<QString> askText(const QString& title, const QString& prompt) override;
    QString chooseFile(const QString& folder, const QString& filter) override;
    std::optional<int> chooseColour(int colour) override;

private:
    QWidget* over() const;

    QWidget* m_window = nullptr;
};
