// The dialog around ucSelectImage. Whoever asks for a picture makes it, shows it and drops it.
#pragma once

#include "design/clsSelectedImage.h"

#include <QDialog>

#include <memory>

class PanelHost;

class frmSelectImage : public QDialog
{
    Q_OBJECT

public:
    // The selection is changed when the user takes a picture: exec() then gives Accepted.
    frmSelectImage(PanelHost& host, const std::shared_ptr<clsSelectedImage>& selection, QWidget* parent);
};
