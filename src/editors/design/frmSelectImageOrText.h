// The dialog around ucSelectImageOrText, for one slot. It goes when it is closed. showImageOrTextDialog makes it.
#pragma once

#include <QDialog>

#include <memory>

class PanelHost;
class clsSelectedImage;

class frmSelectImageOrText : public QDialog
{
    Q_OBJECT

public:
    // The host must outlive it. The selection may be none: a slot that is never filled.
    frmSelectImageOrText(PanelHost& host, const std::shared_ptr<clsSelectedImage>& selection, QWidget* parent);
};

// Shows the dialog under that title, modal over the window of the parent. Its finished signal tells its end.
frmSelectImageOrText* showImageOrTextDialog(PanelHost& host, QWidget* parent, const QString& title,
                                            const std::shared_ptr<clsSelectedImage>& selection);
