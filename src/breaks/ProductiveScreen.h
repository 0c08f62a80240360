#pragma once

#include <QRect>

#include "web/OvraWindow.h"

class RestTimer;

// The small widget of the Productive timer: a running clock of the period
// and one button, to rest now or to go back to work. It stays until the
// timer closes it: keys and close requests do not reach it. The user moves
// it by its handle; the page reports each move.
class ProductiveScreen : public OvraWindow
{
    Q_OBJECT

public:
    explicit ProductiveScreen(RestTimer* timer, QObject* parent = nullptr);

    void page_loaded(bool ok) override;
    bool reopens_after_host_died() const override { return true; }
    void set_resting(bool value);

public slots:
    void update_ui();
    void load_finished();
    void translate();
    void setScreenSize(int width, int height);
    void set_work_state();
    void set_rest_state();
    void have_a_rest_button_clicked();
    QString GET_STRING(QString translation_string);
    // Where the handle dragged the widget's top left corner.
    void move_window(int x, int y);

private:
    RestTimer* timer;
    bool resting = false;
    // Null until the page reports its size; then where the widget stands.
    QRect placed;
    QString shown_time;
};
