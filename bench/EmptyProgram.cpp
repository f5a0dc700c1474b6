#include "EmptyProgram.h"

#include "NoBrowser.h"
#include "base/FileBytes.h"
#include "model/clsImporter.h"
#include "shell/ImportIntoTree.h"
#include "shell/MainForm.h"
#include "shell/StartUp.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

EmptyProgram::EmptyProgram()
{
    QDir(m_directory.path()).mkpath(u"pictures"_s);
    QDir(m_directory.path()).mkpath(u"templates"_s);
    writeFileBytes(folder.countriesFile(), "Mali\n");
    writeFileBytes(folder.shopFile(),
                   "<Tarnwick><Shop><Version>1.2.0</Version><MaxProductId>1</MaxProductId><Name>Fern</Name>"
                   "<SelectedCountries/><ShopDesign/></Shop></Tarnwick>");
    window = startProgram({folder, m_prompts, m_clock, m_errors, [] {}}, NoBrowser::make);
    // Behind the first painting it takes the shop's text, which would otherwise count as part of what is measured.
    settle(20);
}

EmptyProgram::~EmptyProgram() = default;

void EmptyProgram::import(const QString& file)
{
    {
        ImportIntoTree intoTree(*window);
        clsImporter(window->session(), intoTree.progress()).Import(file);
    }
    QCoreApplication::processEvents();
}

int EmptyProgram::nodeCount() const
{
    return window->session().objects.items().Count();
}
