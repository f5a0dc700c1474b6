#include "support/TestSupport.h"

#include "base/Numbers.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

void PrintTo(const QStringList& list, std::ostream* out)
{
    *out << '[' << list.join(u" | "_s).toStdString() << ']';
}

QString localised(const QString& textWithPoint)
{
    QString text = textWithPoint;
    return text.replace(u'.', decimalSeparator());
}

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

TemporaryShopFolder::TemporaryShopFolder()
{
    const QDir directory(m_directory.path());
    directory.mkdir(u"templates"_s);
    directory.mkdir(u"pictures"_s);
}

RecordingPrompts::~RecordingPrompts()
{
    for (const Expected& expected : m_expected) {
        ADD_FAILURE() << "never asked or shown: " << expected.kind.toStdString() << " \""
                      << expected.title.toStdString() << "\" \"" << expected.text.toStdString() << '"';
    }
}

void RecordingPrompts::expectMessage(const QString& title, const QString& text, PromptIcon icon)
{
    m_expected.push_back({u"message"_s, title, text, icon, PromptAnswer::No, {}, {}});
}

void RecordingPrompts::answerYesNo(const QString& title, const QString& text, bool answer)
{
    m_expected.push_back(
        {u"yes-no"_s, title, text, PromptIcon::None, answer ? PromptAnswer::Yes : PromptAnswer::No, {}, {}});
}

void RecordingPrompts::answerDefaultNo(const QString& title, const QString& text, bool answer)
{
    m_expected.push_back({u"yes-no, default no"_s,
                          title,
                          text,
                          PromptIcon::None,
                          answer ? PromptAnswer::Yes : PromptAnswer::No,
                          {},
                          {}});
}

void RecordingPrompts::answerYesNoCancel(const QString& title, const QString& text, PromptAnswer answer)
{
    m_expected.push_back({u"yes-no-cancel"_s, title, text, PromptIcon::None, answer, {}, {}});
}

void RecordingPrompts::answerText(const QString& title, const QString& prompt, const std::optional<QString>& answer)
{
    m_expected.push_back({u"text"_s, title, prompt, PromptIcon::None, PromptAnswer::No, answer, {}});
}

void RecordingPrompts::answerFile(const QString& answer)
{
    m_expected.push_back({u"file"_s, {}, {}, PromptIcon::None, PromptAnswer::No, answer, {}});
}

void RecordingPrompts::answerColour(const std::optional<int>& answer)
{
    m_expected.push_back({u"colour"_s, {}, {}, PromptIcon::None, PromptAnswer::No, {}, answer});
}

RecordingPrompts::Expected RecordingPrompts::next(const QString& kind, const QString& title, const QString& text)
{
    if (m_expected.empty()) {
        ADD_FAILURE() << "unexpected " << kind.toStdString() << " \"" << title.toStdString() << "\" \""
                      << text.toStdString() << '"';
        return {};
    }
    Expected expected = m_expected.front();
    m_expected.pop_front();
    EXPECT_EQ(kind, expected.kind);
    EXPECT_EQ(title, expected.title);
    EXPECT_EQ(text, expected.text);
    return expected;
}

void RecordingPrompts::showMessage(const QString& title, const QString& text, PromptIcon icon)
{
    EXPECT_EQ(next(u"message"_s, title, text).icon, icon);
}

bool RecordingPrompts::askYesNo(const QString& title, const QString& text)
{
    return next(u"yes-no"_s, title, text).answer == PromptAnswer::Yes;
}

bool RecordingPrompts::askYesNoWithDefaultNo(const QString& title, const QString& text)
{
    return next(u"yes-no, default no"_s, title, text).answer == PromptAnswer::Yes;
}

PromptAnswer RecordingPrompts::askYesNoCancel(const QString& title, const QString& text)
{
    return next(u"yes-no-cancel"_s, title, text).answer;
}

std::optional<QString> RecordingPrompts::askText(const QString& title, const QString& prompt)
{
    return next(u"text"_s, title, prompt).textAnswer;
}

QString RecordingPrompts::chooseFile(const QString& folder, const QString& filter)
{
    fileQuestions << folder << filter;
    return next(u"file"_s, {}, {}).textAnswer.value_or(QString());
}

std::optional<int> RecordingPrompts::chooseColour(int /*colour*/)
{
    return next(u"colour"_s, {}, {}).colourAnswer;
}
