#include "shell/DialogPrompts.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QListView>
#include <QMessageBox>
#include <QSpacerItem>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

// Pixels. A title is not cut beside the buttons of its window, and a name can be read while it is typed.
constexpr int leastBoxWidth = 320;
constexpr QSize fileChoiceSize(760, 480);

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

// A message box makes itself as large as its layout asks, and takes no other size.
void widen(QMessageBox& box)
{
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        grid->addItem(new QSpacerItem(leastBoxWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }
}

// Texts come from the shop and from files too, so no box reads them as markup.
QMessageBox::StandardButton runBox(QWidget* window, QMessageBox::Icon icon, const QString& title, const QString& text,
                                   QMessageBox::StandardButtons buttons,
                                   QMessageBox::StandardButton defaultButton = QMessageBox::NoButton)
{
    QMessageBox box(icon, title, text, buttons, window);
    box.setDefaultButton(defaultButton);
    box.setTextFormat(Qt::PlainText);
    widen(box);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

// The toolkit shows the patterns of a filter behind its caption, which may tell them itself: once is enough.
bool captionHasPatterns(const QString& filter)
{
    return filter.contains(u") (");
}

// The toolkit's own choice of a file has no room for sizes and dates, nor for the names of the places at its left.
// Where the desktop has a choice of its own, that is shown as it is.
void showWhole(QFileDialog& dialog)
{
    dialog.resize(fileChoiceSize);
    if (const auto* files = dialog.findChild<QTreeView*>(u"treeView"_s)) {
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
    if (auto* places = dialog.findChild<QListView*>(u"sidebar"_s)) {
        places->setMinimumWidth(places->sizeHintForColumn(0) + 2 * places->frameWidth());
    }
}

} // namespace

// A box over a dialog that is open belongs to that: the desktop would put it behind the dialog otherwise.
QWidget* DialogPrompts::over() const
{
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog != nullptr ? dialog : m_window;
}

void DialogPrompts::showMessage(const QString& title, const QString& text, PromptIcon icon)
{
    runBox(over(), boxIcon(icon), title, text, QMessageBox::Ok);
}

bool DialogPrompts::askYesNo(const QString& title, const QString& text)
{
    return runBox(over(), QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes) ==
           QMessageBox::Yes;
}

bool DialogPrompts::askYesNoWithDefaultNo(const QString& title, const QString& text)
{
    return runBox(over(), QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

PromptAnswer DialogPrompts::askYesNoCancel(const QString& title, const QString& text)
{
    switch (
        runBox(over(), QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
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
    QInputDialog dialog(over());
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.resize(leastBoxWidth, 0); // and as high as its parts need
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

QString DialogPrompts::chooseFile(const QString& folder, const QString& filter)
{
    // A folder that is gone would open the one that the program was started in.
    const bool isGone = !folder.isEmpty() && !QDir(folder).exists();
    QFileDialog dialog(over(), QString(), isGone ? QDir::homePath() : folder, filter);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails, captionHasPatterns(filter));
    showWhole(dialog);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

std::optional<int> DialogPrompts::chooseColour(int colour)
{
    // A colour number has red in the low byte.
    const QColor start(colour & 0xff, (colour >> 8) & 0xff, (colour >> 16) & 0xff);
    const QColor chosen = QColorDialog::getColor(start, over());
    if (!chosen.isValid()) {
        return std::nullopt;
    }
    return chosen.red() | (chosen.green() << 8) | (chosen.blue() << 16);
}
