// Helpers and fakes that the tests of all folders share.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/Clock.h"
#include "base/RuntimeError.h"
#include "base/UserPrompts.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <ostream>

// Readable texts in failed comparisons.
void PrintTo(const QString& text, std::ostream* out);
void PrintTo(const QByteArray& bytes, std::ostream* out);
void PrintTo(const QStringList& list, std::ostream* out);

// A number text written with a point, in the user's locale: "12.50" is 12,50 where the comma separates.
QString localised(const QString& textWithPoint);

// The bytes of a file; a failed test when it cannot be read.
QByteArray fileBytes(const QString& path);
void writeFile(const QString& path, const QByteArray& bytes);

// A temporary application folder with the sub-folders that an installation has.
class TemporaryShopFolder
{
public:
    TemporaryShopFolder();
    ApplicationFolder folder() const { return ApplicationFolder(m_directory.path()); }
    QString path(const QString& relative) const { return m_directory.filePath(relative); }

private:
    QTemporaryDir m_directory;
};

class FixedClock : public Clock
{
public:
    explicit FixedClock(const QDate& date) : day(date) {}
    QDateTime now() const override { return {day, time}; }
    qint64 steadyTime() const override { return steady; }

    QDate day;
    QTime time{14, 3, 5};
    qint64 steady = 0; // microseconds
};

// Gives the answers in the order in which the test listed them, and fails the test on a question or a box
// that the test did not expect.
class RecordingPrompts : public UserPrompts
{
public:
    ~RecordingPrompts() override;

    // What will be asked or shown next, in order.
    void expectMessage(const QString& title, const QString& text, PromptIcon icon = PromptIcon::None);
    void answerYesNo(const QString& title, const QString& text, bool answer);
    // A question whose default is No.
    void answerDefaultNo(const QString& title, const QString& text, bool answer);
    void answerYesNoCancel(const QString& title, const QString& text, PromptAnswer answer);
    void answerText(const QString& title, const QString& prompt, const std::optional<QString>& answer);
    void answerFile(const QString& answer);
    void answerColour(const std::optional<int>& answer);

    // Folders and filters that file choices were asked with.
    QStringList fileQuestions;

    void showMessage(const QString& title, const QString& text, PromptIcon icon) override;
    bool askYesNo(const QString& title, const QString& text) override;
    bool askYesNoWithDefaultNo(const QString& title, const QString& text) override;
    PromptAnswer askYesNoCancel(const QString& title, const QString& text) override;
    std::optional<QString> askText(const QString& title, const QString& prompt) override;
    QString chooseFile(const QString& folder, const QString& filter) override;
    std::optional<int> chooseColour(int colour) override;

private:
    struct Expected
    {
        QString kind;
        QString title;
        QString text;
        PromptIcon icon = PromptIcon::None;
        PromptAnswer answer = PromptAnswer::No;
        std::optional<QString> textAnswer;
        std::optional<int> colourAnswer;
    };

    Expected next(const QString& kind, const QString& title, const QString& text);

    std::deque<Expected> m_expected;
};

// The number of the run-time error that the work raises, 0 when it raises none.
template <class Work>
int errorOf(Work&& work)
{
    try {
        work();
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

// What the run-time error that the work raises tells of its cause and of what was going on; nothing when it raises
// none.
template <class Work>
QStringList circumstancesOf(Work&& work)
{
    try {
        work();
    } catch (const RuntimeError& error) {
        return error.circumstances();
    }
    return {};
}
