// Walks through the windows of the program as a person does and keeps a picture of each step, numbered in the order of
// the walk. The shop is a copy of the sample shop in a temporary folder.
#pragma once

#include "base/Guarded.h"
#include "base/UserPrompts.h"
#include "shell/MainForm.h"

#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class Tour
{
public:
    // The pictures go into the folder, which is made. The errors handler hears of run-time errors on the way.
    Tour(const QString& outputFolder, UserPrompts& prompts, FatalErrorHandler& errors);

    void walk();

private:
    void walkCatalogue();
    void walkDesign();
    void walkPreview();
    void walkExit();

    void click(const char* button);
    void clickNode(const QString& key);
    void openPage(const QString& query);
    void keep(const QString& name);
    void pause(int milliseconds);

    QDir m_output;
    QTemporaryDir m_shopFolder;
    std::unique_ptr<MainForm> m_window;
    int m_number = 0;
};
