// What all panels of the catalogue share: the frame with the heading, and the object of the panel's class that they are
// bound to. A panel adds its fields to the frame, fills them from its object and writes them back; neither is asked for
// while it is bound to nothing.
#pragma once

#include "editors/Panel.h"
#include "editors/PanelFrame.h"
#include "editors/PanelHost.h"

#include <QLineEdit>

#include <memory>
#include <variant>

template <class Class>
class CataloguePanel : public Panel
{
public:
    // An object of another class unbinds the panel and leaves its fields as they are.
    void SetActiveObject(const CatalogueObject& object) final
    {
        const auto* held = std::get_if<std::shared_ptr<Class>>(&object);
        m_object = held ? *held : nullptr;
        if (m_object) {
            fill(*m_object);
        }
    }

    void SaveActiveObject() final
    {
        if (m_object) {
            write(*m_object);
        }
    }

    void ClearActiveObject() final
    {
        m_object.reset();
        forget();
    }

    void selectName() final
    {
        if (m_nameField) {
            m_nameField->setFocus();
            m_nameField->selectAll();
        }
    }

protected:
    // The host must outlive the panel.
    CataloguePanel(PanelHost& host, const QString& heading, QWidget* parent)
        : Panel(parent), m_host(host), m_frame(new PanelFrame(heading, this))
    {
    }

    virtual void fill(Class& object) = 0;
    virtual void write(Class& object) = 0;
    // Drops what the controls hold of the object.
    virtual void forget() {}

    // Tells which field holds the object's name. The tree shows it at the node with the object's key while it is typed.
    void setNameField(QLineEdit* field, QString (*keyOf)(const Class& object))
    {
        m_nameField = field;
        connectGuarded(m_host.errorHandler(), field, &QLineEdit::textEdited, this, [this, keyOf](const QString& text) {
            if (m_object) {
                m_host.setNodeText(keyOf(*m_object), text);
            }
        });
    }

    PanelHost& m_host;
    PanelFrame* m_frame;
    std::shared_ptr<Class> m_object; // none while the panel is not bound

private:
    QLineEdit* m_nameField = nullptr;
};
