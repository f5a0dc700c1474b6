// No exception may leave a slot. So every connection in the sources is made by connectGuarded(), but for those whose
// work can raise nothing: the slots of Qt's own classes, and the short list below.
#include "support/TestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Which signals a file may connect without a guard, and why. Only what stays inside of a widget belongs here.
const QMap<QString, QStringList>& unguardedSignals()
{
    static const QMap<QString, QStringList> table = {
        // The calendar writes the picked day into its field.
        {u"editors/DateField.cpp"_s,
         {u"QCalendarWidget::activated"_s, u"QCalendarWidget::clicked"_s, u"QPushButton::clicked"_s}},
        // A text that is no number is trapped there; who listens to edited() guards that.
        {u"editors/NumericBox.cpp"_s, {u"QLineEdit::cursorPositionChanged"_s, u"QLineEdit::textEdited"_s}},
        // The sample shows the font and the colours.
        {u"editors/design/FontAndColorEditorPanel.cpp"_s,
         {u"QCheckBox::toggled"_s, u"QComboBox::currentTextChanged"_s}},
        // Searching moves the cursor, and a template that cannot be parsed is trapped and told.
        {u"editors/design/TemplateEditor.cpp"_s,
         {u"QLineEdit::returnPressed"_s, u"QPlainTextEdit::textChanged"_s, u"QPushButton::clicked"_s,
          u"QPushButton::clicked"_s, u"QShortcut::activated"_s}},
        // The line numbers follow the text.
        {u"editors/design/TemplateText.cpp"_s,
         {u"QPlainTextEdit::blockCountChanged"_s, u"QPlainTextEdit::updateRequest"_s}},
        // A thumbnail that cannot be made is left out.
        {u"editors/design/pickers/PictureGrid.cpp"_s, {u"QTimer::timeout"_s, u"ThumbnailDelegate::thumbnailMissed"_s}},
        // One tick takes the others away.
        {u"editors/design/pickers/ucSelectCustPage.cpp"_s, {u"QCheckBox::toggled"_s, u"QListWidget::itemChanged"_s}},
        // A look is shown. The bus is told the path of what it listens to.
        {u"look/DesktopScheme.cpp"_s, {u"QDBusPendingCallWatcher::finished"_s, u"portalPath"_s}},
        {u"look/Theme.cpp"_s, {u"DesktopScheme::told"_s}},
        // These call the transfer library; what the end of a transfer does is guarded where it is connected.
        {u"publish/dialog/TransferLoop.cpp"_s,
         {u"QSocketNotifier::activated"_s, u"QSocketNotifier::activated"_s, u"QTimer::timeout"_s}},
        // The page takes note of where it is and loads the address; what it asks before a navigation is guarded.
        {u"shell/browser/PreviewEnginePage.cpp"_s,
         {u"QWebEnginePage::loadFinished"_s, u"QWebEnginePage::newWindowRequested"_s, u"QWebEnginePage::urlChanged"_s}},
    };
    return table;
}

// The signals that are connected by QObject::connect() in a source text, slots of Qt's own classes apart; sorted.
QStringList unguardedSignalsIn(const QString& text)
{
    // The sender, the signal, and the rest up to the first brace of a lambda or the end of the call.
    static const QRegularExpression call(uR"re(\bconnect\(\s*[^,]+,\s*([^,]+),([^;{]*))re"_s);
    static const QRegularExpression slotOfQt(uR"re(,\s*&Q\w+::\w+\)\s*$)re"_s);
    QStringList found;
    auto matches = call.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (!slotOfQt.match(match.captured(2)).hasMatch()) {
            found.append(match.captured(1).remove(u'&'));
        }
    }
    found.sort();
    return found;
}

TEST(Connections, AreGuardedButForThoseThatCanRaiseNothing)
{
    const QDir root(QStringLiteral(TARNWICK_SOURCE_DIR "/src"));
    QMap<QString, QStringList> found;
    QDirIterator files(root.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString file = root.relativeFilePath(path);
        const QStringList connected = unguardedSignalsIn(QString::fromUtf8(fileBytes(path)));
        if (!connected.isEmpty() && file != u"base/Guarded.h"_s) {
            found.insert(file, connected);
        }
    }
    for (const QString& file : (found.keys() + unguardedSignals().keys())) {
        EXPECT_EQ(found.value(file), unguardedSignals().value(file)) << file.toStdString();
    }
}

TEST(Connections, AreFoundInWhateverWayTheyAreWritten)
{
    EXPECT_EQ(unguardedSignalsIn(u"    connect(a, &A::one, this, &B::work);\n"
                                 "    QObject::connect(a,\n            &A::two, b, [b] { b->work(); });"_s),
              (QStringList{u"A::one"_s, u"A::two"_s}));
    EXPECT_EQ(unguardedSignalsIn(u"connectGuarded(errors, a, &A::one, this, &B::work);"_s), QStringList());
    EXPECT_EQ(unguardedSignalsIn(u"connect(a, &A::one, this, &QDialog::reject);"_s), QStringList());
}

} // namespace
