/// \file
/// The controls of everything the engine is told when a session starts and that has no place of its own.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QWidget>

/// Holds the controls and their dependence on each other; stores nothing and talks to no engine.
class EngineControls final : public QWidget
{
    Q_OBJECT

public:
    /// As many channels as the largest layout has.
    static constexpr int mostChannels = 8;

    explicit EngineControls(QWidget *parent = nullptr);

    // Children of this widget. Combos whose text is a code of the engine's are never translated.
    QComboBox *mode = nullptr;
    QComboBox *layoutChoice = nullptr; ///< data: channels
    QList<QComboBox *> channelDevices; ///< data: device id
    QDoubleSpinBox *crossoverHz = nullptr;
    QCheckBox *crossoverBridged = nullptr;
    QComboBox *rig = nullptr; ///< data: the engine's word, empty for "auto"
    QComboBox *dop = nullptr;
    QComboBox *outputPath = nullptr;
    QCheckBox *peakGuard = nullptr;
    QComboBox *denoiseTier = nullptr; ///< index 0 to 3
    QCheckBox *keepHarmonics = nullptr;
    QCheckBox *resample = nullptr;
    QComboBox *resampleQuality = nullptr; ///< data: code
    QComboBox *replayGain = nullptr;      ///< data: 0, 1, 2
    QCheckBox *streamingRead = nullptr;
    QDoubleSpinBox *crossfadeSec = nullptr;
    QCheckBox *gapless = nullptr;
    QDoubleSpinBox *speedRatio = nullptr;
    QCheckBox *forcedPcm = nullptr;
    QComboBox *pcmBits = nullptr;
    QComboBox *pcmFilter = nullptr; ///< data: code
    QCheckBox *pcmToDsd = nullptr;
    QComboBox *pcmToDsdTarget = nullptr; ///< data: rate in hertz
    QComboBox *pcmToDsdTaps = nullptr;   ///< data: taps, 0 automatic
    QLineEdit *extDecoder = nullptr;

    int channelCount() const { return layoutChoice->currentData().toInt(); }
    /// Shows the decode filter that the engine has taken, marked when the engine chose it. Tells nobody; a
    /// name that is none of the choices changes nothing.
    void showPcmFilter(const QString &name, bool automatic);
    /// Enables and shows what the present choices give a meaning to. Called by every change; call it after
    /// values have been set with signals blocked.
    void refreshDependents();

    /// Wide enough for one column: a narrow place gets the cards one below the other.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Any control was changed by hand or by code.
    void changed();
    /// The user took a decode filter by hand.
    void pcmFilterChosen();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildDevices(QGridLayout *grid);
    void buildDecoding(QGridLayout *grid);
    void buildSignal(QGridLayout *grid);
    void buildPlayback(QGridLayout *grid);
    QWidget *card(const QString &title, void (EngineControls::*build)(QGridLayout *));
    QComboBox *addCombo(QGridLayout *grid, const QString &name, const QString &tip);
    QComboBox *addCodes(QGridLayout *grid, const QString &name, const QString &tip, const QStringList &codes);
    QCheckBox *addCheck(QGridLayout *grid, const QString &name, const QString &tip);
    QDoubleSpinBox *addSpin(QGridLayout *grid, const QString &name, const QString &tip, double low,
                            double high, int decimals);
    void addRow(QGridLayout *grid, const QString &name, const QString &tip, QWidget *control);
    void watch();
    void namePcmFilters(int markedRow);

    QBoxLayout *m_columns;
    QList<QWidget *> m_channelRows; ///< label and combo of each channel, in pairs
};
