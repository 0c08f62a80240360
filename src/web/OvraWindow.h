#pragma once

#include <QDialog>

// Base of every window that shows a page. The page and its bridge arrive
// with the web view; until then this is a plain dialog.
class OvraWindow : public QDialog
{
    Q_OBJECT

public:
    OvraWindow(int bridge_port, QWidget* parent, int flags)
        : QDialog(parent), m_bridge_port(bridge_port)
    {
        Q_UNUSED(flags);
    }

    int bridge_port() const { return m_bridge_port; }

private:
    int m_bridge_port;
};
