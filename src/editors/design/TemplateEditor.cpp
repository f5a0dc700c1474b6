#include "editors/design/TemplateEditor.h"

#include "editors/PanelParts.h"
#include "editors/design/TemplateText.h"
#include "look/Measures.h"
#include "look/WordLabel.h"
#include "template_engine/TemplateParser.h"
#include "template_engine/Templates_Set.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

TemplateEditor::TemplateEditor(bool writtenOnLeaving, QWidget* parent)
    : QWidget(parent),
      TemplateTxt(new TemplateText(this)),
      TemplateStateLbl(new WordLabel(WordLabel::Kind::Quiet, {}, this)),
      m_writtenOnLeaving(writtenOnLeaving)
{
    TemplateTxt->setObjectName(u"TemplateTxt"_s);
    TemplateTxt->setAccessibleName(u"Template"_s);
    TemplateTxt->setMinimumHeight(160);
    TemplateStateLbl->setObjectName(u"TemplateStateLbl"_s);
    TemplateStateLbl->setWordWrap(true);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Measure::Gap);
    column->addWidget(TemplateTxt, 1);
    column->addWidget(TemplateStateLbl);
    makeFindRow();
    connect(TemplateTxt, &QPlainTextEdit::textChanged, this, &TemplateEditor::check);
}

void TemplateEditor::makeFindRow()
{
    FindTxt = new QLineEdit(this);
    FindTxt->setObjectName(u"FindTxt"_s);
    FindTxt->setClearButtonEnabled(true);
    FindTxt->setMaximumWidth(260);
    const auto button = [this](const char* name, const QString& text) {
        auto* made = new QPushButton(text, this);
        made->setObjectName(QLatin1String(name));
        return made;
    };
    FindNextBtn = button("FindNextBtn", u"Next"_s);
    FindPreviousBtn = button("FindPreviousBtn", u"Previous"_s);
    FindResultLbl = new QLabel(this);
    FindResultLbl->setObjectName(u"FindResultLbl"_s);

    auto* row = new QHBoxLayout;
    row->setSpacing(Measure::Gap);
    row->addWidget(newCaption(u"&Find:"_s, FindTxt));
    row->addSpacing(Measure::Wide - Measure::Gap);
    row->addWidget(FindTxt, 1);
    row->addWidget(FindNextBtn);
    row->addWidget(FindPreviousBtn);
    row->addWidget(FindResultLbl, 1);
    qobject_cast<QVBoxLayout*>(layout())->addLayout(row);

    auto* toFind = new QShortcut(QKeySequence::Find, TemplateTxt, nullptr, nullptr, Qt::WidgetShortcut);
    connect(toFind, &QShortcut::activated, this, [this] {
        FindTxt->setFocus();
        FindTxt->selectAll();
    });
    connect(FindTxt, &QLineEdit::returnPressed, this, [this] { find({}); });
    connect(FindTxt, &QLineEdit::textChanged, FindResultLbl, &QLabel::clear);
    connect(FindNextBtn, &QPushButton::clicked, this, [this] { find({}); });
    connect(FindPreviousBtn, &QPushButton::clicked, this, [this] { find(QTextDocument::FindBackward); });
}

void TemplateEditor::showTemplate(const QString& templateText)
{
    m_isAbsent = false;
    m_whyUnread.clear();
    show(templateText);
}

void TemplateEditor::showUnusable(const QString& fileText, const QString& whyUnread)
{
    m_isAbsent = true;
    m_whyUnread = whyUnread;
    show(fileText);
}

void TemplateEditor::show(const QString& text)
{
    TemplateTxt->showTemplate(text);
    m_shown = editedText();
    FindResultLbl->clear();
    check();
}

bool TemplateEditor::isEdited() const
{
    return editedText() != m_shown;
}

QString TemplateEditor::editedText() const
{
    return TemplateTxt->editedText();
}

void TemplateEditor::setEditable(bool editable)
{
    for (QWidget* part : std::initializer_list<QWidget*>{TemplateTxt, FindTxt, FindNextBtn, FindPreviousBtn}) {
        part->setEnabled(editable);
    }
}

void TemplateEditor::find(QTextDocument::FindFlags direction)
{
    const QString text = FindTxt->text();
    FindResultLbl->clear();
    if (text.isEmpty() || TemplateTxt->find(text, direction)) {
        return;
    }
    // Continues from the other end.
    const QTextCursor before = TemplateTxt->textCursor();
    TemplateTxt->moveCursor(direction.testFlag(QTextDocument::FindBackward) ? QTextCursor::End : QTextCursor::Start);
    if (!TemplateTxt->find(text, direction)) {
        TemplateTxt->setTextCursor(before);
        FindResultLbl->setText(u"Not found"_s);
    }
}

// Parses what saving would parse. It takes less than a key's time: a template has 32,767 characters with tags in them.
void TemplateEditor::check()
{
    QString state = u"No mistakes: every tag and every block is closed."_s;
    Tone tone = Tone::Muted;
    if (!m_whyUnread.isEmpty() && !isEdited()) {
        state = u"%1 The page cannot be shown. Saving writes the file anew."_s.arg(m_whyUnread);
        tone = Tone::Error;
    }
    try {
        parse_text(linesEndedByCr(editedText()));
    } catch (const TemplateError& error) {
        // A line's end is one character here as in the document.
        const QTextBlock line = TemplateTxt->document()->findBlock(static_cast<int>(error.position()));
        state = u"Line %1, column %2: %3 %4"_s.arg(line.blockNumber() + 1)
                    .arg(error.position() - line.position() + 1)
                    .arg(error.description(), whatSavingDoes());
        tone = Tone::Error;
    }
    TemplateStateLbl->setTone(tone);
    TemplateStateLbl->setText(state);
}

// With a mistake in the text.
QString TemplateEditor::whatSavingDoes() const
{
    if (m_isAbsent && !isEdited()) {
        return u"The page cannot be shown. Saving the template ends the program; leaving it as it is writes nothing."_s;
    }
    if (m_writtenOnLeaving) {
        return u"Saving the template, or leaving this panel, writes it so and ends the program."_s;
    }
    return u"Saving the template writes it so and ends the program."_s;
}
