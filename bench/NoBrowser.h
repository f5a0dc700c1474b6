// A plain widget in the browser's place.
#pragma once

#include "pages/preview/PreviewSurface.h"
#include "shell/PreviewParts.h"

#include <QWidget>

class NoBrowser : public QWidget, public PreviewSurface
{
public:
    using QWidget::QWidget;

    bool replaceDocument(const QString& text) override
    {
        document = text;
        return true;
    }
    void goBlank() override {}

    QString document; // the last one

    static PreviewParts make(QWidget* parent)
    {
        auto* preview = new NoBrowser(parent);
        return {preview, preview, [](PreviewNavigation*) {}};
    }
};
