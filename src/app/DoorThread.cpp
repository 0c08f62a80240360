#include "app/DoorThread.h"

#include <QObject>
#include <QThread>

namespace {
QThread*& door_thread()
{
    static QThread* thread = nullptr;
    return thread;
}
} // namespace

void DoorThread::take(QObject* door)
{
    QThread*& thread = door_thread();
    if (!thread) {
        thread = new QThread;
        thread->setObjectName(QStringLiteral("OvraDoors"));
        thread->start();
    }
    door->moveToThread(thread);
}

void DoorThread::close(QObject* door)
{
    if (!door)
        return;
    QThread* thread = door_thread();
    if (door->thread() == QThread::currentThread() || !thread || !thread->isRunning()) {
        delete door;
        return;
    }
    QMetaObject::invokeMethod(door, [door] { delete door; }, Qt::BlockingQueuedConnection);
}

void DoorThread::stop()
{
    QThread*& thread = door_thread();
    if (!thread)
        return;
    thread->quit();
    thread->wait();
    delete thread;
    thread = nullptr;
}
