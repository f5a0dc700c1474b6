// The program up to its shown window, over an empty shop in a folder of its own, without a browser and without a sound.
#pragma once

#include "Measuring.h"
#include "NoPrompts.h"
#include "base/ApplicationFolder.h"
#include "base/Clock.h"

#include <QTemporaryDir>

#include <memory>

class MainForm;

class EmptyProgram
{
public:
    EmptyProgram();
    ~EmptyProgram();

    // Takes the lines of the file into model and tree.
    void import(const QString& file);

    // Objects of the catalogue, the shop among them.
    int nodeCount() const;

private:
    QTemporaryDir m_directory;
    NoPrompts m_prompts;
    SystemClock m_clock;
    GiveUpOnErrors m_errors;

public:
    const ApplicationFolder folder{m_directory.path()};
    std::unique_ptr<MainForm> window;
};
