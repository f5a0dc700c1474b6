// What a panel asks its window for, where there is no window: the session, and an end of the program for errors.
#pragma once

#include "Measuring.h"
#include "editors/PanelHost.h"

#include <cstdlib>

class LonePanelHost : public PanelHost
{
public:
    explicit LonePanelHost(ShopSession& session) : m_session(session) {}
    ShopSession& session() override { return m_session; }
    Templates_Set& CurrentTemplatesSet() override { std::abort(); } // nothing here asks for templates
    FatalErrorHandler& errorHandler() override { return m_errors; }
    void ApplyActivePanel() override {}
    void ResetActivePanel() override {}
    void setNodeText(const QString& /*key*/, const QString& /*text*/) override {}

private:
    ShopSession& m_session;
    GiveUpOnErrors m_errors;
};
