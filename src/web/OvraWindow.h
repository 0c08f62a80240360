#pragma once

#include <QDialog>

// Base of every window that shows a page. The page and its bridge arrive
// with the web view; until then this is a plain dialog.
class OvraWindow : public QDialog
{
    Q_OBJECT

public:
    OvraWindow(int bridge_port, QWidget* parent, int flags)
        : QDialog(parent)
    {
        // The bridge's port and flags matter once the window shows a page.
        Q_UNUSED(bridge_port);
        Q_UNUSED(flags);
    }
};
