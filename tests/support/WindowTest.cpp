#include "support/WindowTest.h"

#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString sampleFolder = QStringLiteral(TARNWICK_SOURCE_DIR "/app/");

TreeNode* nodeBelow(TreeNode* node, const QString& key)
{
    if (!node || node->key == key) {
        return node;
    }
    for (const auto& child : node->children) {
        if (TreeNode* found = nodeBelow(child.get(), key)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

bool RecordingPreview::replaceDocument(const QString& text)
{
    documents << text;
    return true;
}

void RecordingPreview::goBlank()
{
    ++blanks;
}

void WindowTest::useSampleShop()
{
    QDirIterator entries(sampleFolder, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        QFile::remove(files.path(file.mid(sampleFolder.size())));
        ASSERT_TRUE(QFile::copy(file, files.path(file.mid(sampleFolder.size())))) << file.toStdString();
    }
}

void WindowTest::useShop(const QByteArray& inside)
{
    writeFile(files.path(u"shop.xml"_s), "<Tarnwick><Shop>" + inside + "</Shop></Tarnwick>");
    writeFile(files.path(u"countries.txt"_s), "Norway\r\n");
}

void letBePainted(MainForm& window)
{
    window.activateWindow();
    static_cast<void>(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(1); // milliseconds
}

void WindowTest::start()
{
    const ProgramServices services{files.folder(), prompts, clock, errors, [this] { ++restarts; }};
    window = startProgram(services, [this](QWidget* parent) { return makePreview(parent); });
    letBePainted(*window);
}

PreviewParts WindowTest::makePreview(QWidget* parent)
{
    preview = new RecordingPreview(parent);
    return {preview, preview, [this](PreviewNavigation* navigation) { preview->navigation = navigation; }};
}

void WindowTest::click(const char* button)
{
    auto* shortcart = find<ShortcartButton>(button);
    QTest::mouseClick(shortcart->findChild<QLabel*>(u"IconImg"_s), Qt::LeftButton);
}

void WindowTest::trigger(const char* action)
{
    find<QAction>(action)->trigger();
}

void WindowTest::clickNode(const QString& key)
{
    CatalogueTree* tree = window->parts().CategoriesAndProductsTree;
    TreeNode* node = nodeBelow(tree->nodes().rootNode(), key);
    ASSERT_NE(node, nullptr) << key.toStdString();
    for (TreeNode* above = node->parent; above; above = above->parent) {
        tree->expandNode(above);
    }
    const QModelIndex index = tree->nodes().indexOf(node);
    tree->scrollTo(index);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(index).center());
}

QStringList WindowTest::logLines() const
{
    QStringList lines = QString::fromUtf8(fileBytes(files.folder().loadLogFile())).split(u"\r\n"_s);
    EXPECT_EQ(lines.takeLast(), QString());
    for (QString& line : lines) {
        EXPECT_TRUE(line.size() >= 2 && line.startsWith(u'"') && line.endsWith(u'"')) << line.toStdString();
        line = line.mid(1, line.size() - 2);
    }
    return lines;
}
