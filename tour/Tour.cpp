#include "Tour.h"

#include "Parts.h"
#include "Walk.h"
#include "base/Clock.h"
#include "shell/BrowserPreview.h"
#include "shell/StartUp.h"

#include <QCursor>
#include <QDirIterator>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

const SystemClock systemClock;

void copyFolder(const QString& from, const QString& to)
{
    QDirIterator entries(from, QDir::Files, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString file = entries.next();
        const QString target = to + file.mid(from.size());
        QDir().mkpath(QFileInfo(target).path());
        QFile::copy(file, target);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    }
}

} // namespace

Tour::Tour(const QString& outputFolder, const QSize& windowSize, TourPrompts& prompts, FatalErrorHandler& errors)
    : m_output(outputFolder), m_prompts(prompts)
{
    m_output.mkpath(u"."_s);
    copyFolder(QStringLiteral(TARNWICK_APPLICATION_FOLDER), m_shopFolder.path());
    const ProgramServices services{ApplicationFolder(m_shopFolder.path()), prompts, systemClock, errors, [] {}};
    m_window = startProgram(services, browserPreview(services.folder, errors));
    if (!windowSize.isEmpty()) {
        m_window->resize(windowSize);
    }
}

void Tour::walk(bool withPages)
{
    Walk walk(*m_window, m_prompts, m_output);
    walk.activateWindow();
    QCursor::setPos(m_window->screen()->geometry().bottomRight()); // nothing lights up under a mouse that stands there
    walkModes(walk);
    walkCataloguePanels(walk);
    walkCatalogueExtremes(walk);
    walkDesignManagers(walk);
    walkDialogs(walk);
    if (withPages) {
        walkPages(walk);
    }
}
