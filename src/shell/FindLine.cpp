#include "shell/FindLine.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "shell/CatalogueTree.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QStringMatcher>

using namespace Qt::StringLiterals;

FindLine::FindLine(CatalogueTree& tree, CodeOf codeOf, FatalErrorHandler& errors, QWidget* parent)
    : QWidget(parent), m_tree(tree), m_codeOf(std::move(codeOf)), m_text(new QLineEdit(this)), m_count(new QLabel(this))
{
    setObjectName(u"FindLine"_s);
    m_text->setObjectName(u"CatalogueFindTxt"_s);
    m_text->setAccessibleName(u"Find in the catalogue"_s);
    m_text->setPlaceholderText(u"Name or code"_s);
    m_count->setObjectName(u"lblFound"_s);
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_count->setTextFormat(Qt::PlainText);
    QPalette colours = m_count->palette();
    colours.setColor(QPalette::WindowText, tone(Tone::TreeText)); // in both looks
    m_count->setPalette(colours);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::Gap, Measure::Gap, Measure::Gap, Measure::Gap);
    row->setSpacing(Measure::Gap);
    row->addWidget(m_text, 1);
    row->addWidget(m_count);
    setTabOrder(&m_tree, m_text);
    hide();

    connectGuarded(errors, m_text, &QLineEdit::textChanged, this, &FindLine::count);
    // What is counted, and where the current row stands in it, changes with the tree.
    const CatalogueTreeModel& nodes = m_tree.nodes();
    connectGuarded(errors, &nodes, &QAbstractItemModel::rowsInserted, this, &FindLine::count);
    connectGuarded(errors, &nodes, &QAbstractItemModel::rowsRemoved, this, &FindLine::count);
    connectGuarded(errors, &nodes, &QAbstractItemModel::layoutChanged, this, &FindLine::count);
    connectGuarded(errors, &nodes, &QAbstractItemModel::modelReset, this, &FindLine::count);
    connectGuarded(errors, &nodes, &QAbstractItemModel::dataChanged, this,
                   [this](const QModelIndex& /*first*/, const QModelIndex& /*last*/, const QList<int>& roles) {
                       if (roles.contains(Qt::DisplayRole)) {
                           count();
                       }
                   });
    connectGuarded(errors, m_tree.selectionModel(), &QItemSelectionModel::currentChanged, this, &FindLine::count);
}

void FindLine::ask()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    count();
}

void FindLine::dismiss()
{
    m_tree.setFocus(Qt::ShortcutFocusReason);
    hide();
}

FindLine::Hits FindLine::hits() const
{
    Hits found;
    const TreeNode* root = m_tree.nodes().rootNode();
    if (root && !m_text->text().isEmpty()) {
        collect(*root, QStringMatcher(m_text->text(), Qt::CaseInsensitive), m_tree.selectedNode(), found);
    }
    return found;
}

void FindLine::collect(const TreeNode& above, const QStringMatcher& matcher, const TreeNode* current, Hits& hits) const
{
    for (const std::unique_ptr<TreeNode>& node : above.children) {
        const bool isHit = matcher.indexIn(node->text) >= 0 || matcher.indexIn(m_codeOf(node->key)) >= 0;
        if (node.get() == current) {
            hits.above = hits.nodes.size();
            hits.hasCurrent = isHit;
        }
        if (isHit) {
            hits.nodes.push_back(node.get());
        }
        collect(*node, matcher, current, hits);
    }
}

// Past the last hit it begins again with the first one, and the other way round.
void FindLine::goOn(bool forward)
{
    const Hits found = hits();
    const std::size_t all = found.nodes.size();
    if (all > 0) {
        const std::size_t below = found.above + (found.hasCurrent ? 1 : 0);
        m_tree.clickNode(found.nodes[forward ? below % all : (found.above + all - 1) % all]);
    }
}

void FindLine::count()
{
    if (isHidden()) {
        return;
    }
    const Hits found = hits();
    const auto written = [](std::size_t number) { return QLocale().toString(static_cast<qulonglong>(number)); };
    if (m_text->text().isEmpty()) {
        m_count->clear();
    } else if (found.nodes.empty()) {
        m_count->setText(u"Nothing found"_s);
    } else if (found.hasCurrent) {
        m_count->setText(u"%1 of %2"_s.arg(written(found.above + 1), written(found.nodes.size())));
    } else {
        m_count->setText(u"%1 found"_s.arg(written(found.nodes.size())));
    }
}

void FindLine::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goOn(!event->modifiers().testFlag(Qt::ShiftModifier));
        break;
    case Qt::Key_Escape:
        dismiss();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void FindLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillSharp(painter, rect(), tone(Tone::FindLine));
}
