// Every question to the user and every message box goes through this interface: the windows' own implementation shows
// dialogs, the tests' one answers in order and fails on a question that nobody expected.
#pragma once

#include <QString>

#include <optional>

enum class PromptIcon { None, Information, Warning, Critical };
enum class PromptAnswer { Yes, No, Cancel };

class UserPrompts
{
public:
    virtual ~UserPrompts() = default;

    // A box with one button.
    virtual void showMessage(const QString& title, const QString& text, PromptIcon icon) = 0;
    virtual bool askYesNo(const QString& title, const QString& text) = 0;
    // The same where Yes does harm: Return alone answers No.
    virtual bool askYesNoWithDefaultNo(const QString& title, const QString& text) { return askYesNo(title, text); }
    virtual PromptAnswer askYesNoCancel(const QString& title, const QString& text) = 0;
    // One line of text; nothing on Cancel.
    virtual std::optional<QString> askText(const QString& title, const QString& prompt) = 0;
    // The path of an existing file; an empty text on Cancel. An empty folder leaves the start to the platform.
    virtual QString chooseFile(const QString& folder, const QString& filter) = 0;
    // A colour number (red in the low byte), starting from another; nothing on Cancel.
    virtual std::optional<int> chooseColour(int colour) = 0;
};
