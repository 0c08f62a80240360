#pragma once

#include "breaks/IRestScreen.h"

// The rest screen as a page: the time left, a way out unless the rest is
// Strict, the clock, and `background.jpg` from beside the program when one
// is there. The Standard kind adds a slow animation behind it.
class RestScreenSimple : public IRestScreen
{
    Q_OBJECT

public:
    RestScreenSimple(RestTimer* timer, QScreen* screen, bool primary, QObject* parent = nullptr);

    void update_ui() override;
    void page_loaded(bool ok) override;
    // A rest in progress keeps its screens when the host has to start again.
    bool reopens_after_host_died() const override { return true; }

public slots:
    void load_finished();
    void set_screen_type();
    void set_timer();
    void set_continue_button() override;
    QString GET_STRING(QString translation_string);
    // The picture beside the program as a data address, or empty.
    QString get_background_image();

protected:
    // The page's one-shot start, which differs by kind.
    virtual QString start_script() const;

private:
    // What the page was last told, so that a second repeats nothing.
    int shown_seconds = -2;
    QString shown_type;
};

class RestScreenStandard : public RestScreenSimple
{
    Q_OBJECT

public:
    using RestScreenSimple::RestScreenSimple;

protected:
    QString start_script() const override;
};
