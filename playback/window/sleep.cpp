// The sleep timer: after its minutes the music fades out and stops.
#include "ui/window/player_gui_window.h"

#include "ui/dock_bar.h"

void PlayerGuiWindow::setSleepTimer(int minutes)
{
    SleepState &sleep = m_transport.sleep;
    endSleepFade();
    if (sleep.sleepTimer)
        sleep.sleepTimer->stop();
    sleep.minutes = std::clamp(minutes, 0, longestSleepMinutes);
    if (sleep.minutes > 0) {
        if (!sleep.sleepTimer) {
            sleep.sleepTimer = new QTimer(this);
            sleep.sleepTimer->setSingleShot(true);
            connect(sleep.sleepTimer, &QTimer::timeout, this, &PlayerGuiWindow::sleepExpired);
        }
        sleep.sleepTimer->start(sleep.minutes * m_options.times.sleepMinute);
    }
    showSleepTimer();
    logLine(sleepTimerText(sleep.minutes));
}

void PlayerGuiWindow::showSleepTimer()
{
    Q_EMIT sleepTimerShown(m_transport.sleep.minutes, sleepTimerText(m_transport.sleep.minutes));
}

void PlayerGuiWindow::sleepExpired()
{
    SleepState &sleep = m_transport.sleep;
    sleep.minutes = 0;
    const int volume = m_ui.dock->volume->value();
    if (!sessionRuns() || volume <= 0) {
        showSleepTimer();
        stopPlayback();
        return;
    }
    sleep.volumeBefore = volume;
    sleep.fadeStep = 0;
    if (!sleep.sleepFadeTimer) {
        sleep.sleepFadeTimer = new QTimer(this);
        connect(sleep.sleepFadeTimer, &QTimer::timeout, this, &PlayerGuiWindow::sleepFadeStep);
    }
    logLine(sleepFadeBeginsText());
    sleep.sleepFadeTimer->start(m_options.times.sleepFadeStep);
}

void PlayerGuiWindow::sleepFadeStep()
{
    SleepState &sleep = m_transport.sleep;
    // Whoever has stopped by hand meanwhile wants the volume as it was, and no second stop.
    const bool playing = sessionRuns() && !m_start.userStopped;
    if (++sleep.fadeStep < sleepFadeSteps && playing) {
        m_ui.dock->volume->setValue(sleepFadeVolume(sleep.volumeBefore, sleep.fadeStep));
        return;
    }
    sleep.sleepFadeTimer->stop();
    if (playing)
        stopPlayback();
    endSleepFade();
    showSleepTimer();
    if (playing)
        logLine(sleepFadeEndedText());
}

void PlayerGuiWindow::endSleepFade()
{
    SleepState &sleep = m_transport.sleep;
    if (sleep.volumeBefore < 0)
        return;
    sleep.sleepFadeTimer->stop();
    sleep.fadeStep = 0;
    const int volume = std::exchange(sleep.volumeBefore, -1);
    // After a stop the slider comes back in silence: an engine on its way out would sound up once more. One
    // that plays on is told.
    if (sessionRuns() && !m_start.userStopped)
        m_ui.dock->volume->setValue(volume);
    else
        m_ui.dock->showVolume(volume);
}
