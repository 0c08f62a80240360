#pragma once

#include "web/OvraWindow.h"

// A notification in the top right corner that runs a chain of exercise
// steps ("eye_exercises", "neck_exercises", "back_exercises"): a click on
// the notification goes to the next step. It owns itself and goes when its
// chain ends or the user closes it; several may run at once.
class NotificationScreen : public OvraWindow
{
    Q_OBJECT

public:
    explicit NotificationScreen(const QString& type, QObject* parent = nullptr);

    void page_gone() override;

public slots:
    QString GET_STRING(QString translation_string);
    void setScreenSize(int width, int height);
    void deleteWindow();
    QString get_notification_type();

private:
    QString type;
    bool deleting = false;
};
