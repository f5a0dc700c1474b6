#include "shell/DialogPrompts.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace {

QMessageBox::Icon boxIcon(PromptIcon icon)
{
    switch (icon) {
    case PromptIcon::None:
        return QMessageBox::NoIcon;
    case PromptIcon::Information:
        return QMessageBox::Information;
    case PromptIcon::Warning:
        return QMessageBox::Warning;
    case PromptIcon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

// Texts come from the shop and from files too, so no box reads them as markup.
QMessageBox::StandardButton runBox(QWidget* window, QMessageBox::Icon icon, const QString& title, const QString& text,
                                   QMessageBox::StandardButtons buttons,
                                   QMessageBox::StandardButton defaultButton = QMessageBox::NoButton)
{
    QMessageBox box(icon, title, text, buttons, window);
    box.setDefaultButton(defaultButton);
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

// The toolkit shows the patterns of a filter behind its caption, which may tell them itself: once is enough.
bool captionHasPatterns(const QString& filter)
{
    return filter.contains(u") (");
}

} // namespace

void DialogPrompts::showMessage(const QString& title, const QString& text, PromptIcon icon)
{
    runBox(m_window, boxIcon(icon), title, text, QMessageBox::Ok);
}

bool DialogPrompts::askYesNo(const QString& title, const QString& text)
{
    return runBox(m_window, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
           QMessageBox::Yes;
}

bool DialogPrompts::askYesNoWithDefaultNo(const QString& title, const QString& text)
{
    return runBox(m_window, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

PromptAnswer DialogPrompts::askYesNoCancel(const QString& title, const QString& text)
{
    switch (runBox(m_window, QMessageBox::Question, title, text,
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return PromptAnswer::Yes;
    case QMessageBox::No:
        return PromptAnswer::No;
    default:
        return PromptAnswer::Cancel;
    }
}

std::optional<QString> DialogPrompts::askText(const QString& title, const QString& prompt)
{
    bool accepted = false;
    const QString text = QInputDialog::getText(m_window, title, prompt, QLineEdit::Normal, QString(), &accepted);
    return accepted ? std::optional(text) : std::nullopt;
}

QString DialogPrompts::chooseFile(const QString& folder, const QString& filter)
{
    // A folder that is gone would open the one that the program was started in.
    const bool isGone = !folder.isEmpty() && !QDir(folder).exists();
    return QFileDialog::getOpenFileName(m_window, QString(), isGone ? QDir::homePath() : folder, filter, nullptr,
                                        captionHasPatterns(filter) ? QFileDialog::HideNameFilterDetails
                                                                   : QFileDialog::Options());
}

std::optional<int> DialogPrompts::chooseColour(int colour)
{
    // A colour number has red in the low byte.
    const QColor start(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff);
    const QColor chosen = QColorDialog::getColor(start, m_window);
    if (!chosen.isValid()) {
        return std::nullopt;
    }
    return chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
}
