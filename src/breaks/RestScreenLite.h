#pragma once

#include "breaks/IRestScreen.h"

class QLabel;
class QPushButton;
class QWidget;

// The light rest screen: native widgets in this program, so that a rest
// needs no web engine. The time left and a Skip button on a dark veil.
class RestScreenLite : public IRestScreen
{
    Q_OBJECT

public:
    RestScreenLite(RestTimer* timer, QScreen* screen, bool primary, QObject* parent = nullptr);
    ~RestScreenLite() override;

    void update_ui() override;
    void close_screen() override;

public slots:
    void set_continue_button() override;
    void on_pushButton_clicked();

private:
    void set_screen_type();

    QWidget* widget;
    QLabel* label;
    QPushButton* pushButton;
};
