#pragma once

#include "web/OvraWindow.h"

// The prompt in the corner that a new version is out, with a button to
// install it. The controller keeps one at most.
class NewVersionNotification : public OvraWindow
{
    Q_OBJECT

public:
    explicit NewVersionNotification(const QString& version, QObject* parent = nullptr);

    void page_loaded(bool ok) override;

public slots:
    void load_finished();
    void setScreenSize(int width, int height);
    void installClicked();
    // The page's close, once its animation has run; the object goes.
    void closeNotification();

signals:
    void install_requested();
    void closed();

private:
    QString version;
    bool closing = false;
};
