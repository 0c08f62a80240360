#pragma once

#include "web/OvraWindow.h"

class RestTimer;

// The prompt in the corner about ten seconds before a rest: how long is
// left, and a button that puts the rest off by the postpone length.
class PostponeBreak : public OvraWindow
{
    Q_OBJECT

public:
    explicit PostponeBreak(RestTimer* timer, QObject* parent = nullptr);

    void page_loaded(bool ok) override;

public slots:
    void update_ui();
    void load_finished();
    void setScreenSize(int width, int height);
    void postpone_clicked();
    // The page's close button, once its animation has run.
    void close_postpone();

private:
    RestTimer* timer;
};
