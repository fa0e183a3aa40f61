/// \file
/// The controls of everything the engine is told when a session starts and that has no place of its own.
#pragma once

#include "output/engine_choices.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QWidget>

/// Shows the choices and lets them be changed; stores nothing and talks to no engine.
class EngineControls final : public QWidget
{
    Q_OBJECT

public:
    explicit EngineControls(QWidget *parent = nullptr);

    // Children of this widget. The data of a combo's row is the code.
    QComboBox *mode = nullptr;
    QComboBox *layoutChoice = nullptr;
    QList<QComboBox *> channelDevices; ///< data: device id
    QDoubleSpinBox *crossoverHz = nullptr;
    QCheckBox *crossoverBridged = nullptr;
    QComboBox *rig = nullptr;
    QComboBox *dop = nullptr;
    QComboBox *outputPath = nullptr;
    QCheckBox *peakGuard = nullptr;
    QComboBox *denoiseTier = nullptr; ///< index 0 to 3
    QCheckBox *keepHarmonics = nullptr;
    QCheckBox *resample = nullptr;
    QComboBox *resampleQuality = nullptr;
    QComboBox *replayGain = nullptr;
    QCheckBox *streamingRead = nullptr;
    QDoubleSpinBox *crossfadeSec = nullptr;
    QCheckBox *gapless = nullptr;
    QDoubleSpinBox *speedRatio = nullptr;
    QCheckBox *forcedPcm = nullptr;
    QComboBox *pcmBits = nullptr;
    QComboBox *pcmFilter = nullptr;
    QCheckBox *pcmToDsd = nullptr;
    QComboBox *pcmToDsdTarget = nullptr;
    QComboBox *pcmToDsdTaps = nullptr;
    QLineEdit *extDecoder = nullptr;

    /// Shows the record and tells nobody. Channel devices that the combos do not list are left as they are.
    void showChoices(const EngineChoices &choices);
    /// What is chosen now.
    EngineChoices choices() const;

    /// Wide enough for one column: a narrow place gets the cards one below the other.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Any control was changed by hand or by code.
    void changed();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildDevices(QGridLayout *grid);
    void buildDecoding(QGridLayout *grid);
    void buildSignal(QGridLayout *grid);
    void buildPlayback(QGridLayout *grid);
    QWidget *card(const QString &title, void (EngineControls::*build)(QGridLayout *));
    QComboBox *addCombo(QGridLayout *grid, const QString &name, const QString &tip,
                        const QList<ChoiceItem> &items = {});
    QCheckBox *addCheck(QGridLayout *grid, const QString &name, const QString &tip);
    QDoubleSpinBox *addSpin(QGridLayout *grid, const QString &name, const QString &tip, double low,
                            double high, int decimals);
    void addRow(QGridLayout *grid, const QString &name, const QString &tip, QWidget *control);
    void watch();
    void namePcmFilters(bool automatic);
    void refreshDependents();

    QBoxLayout *m_columns;
    QList<QWidget *> m_channelRows;    ///< label and combo of each channel, in pairs
    bool m_pcmFilterAutomatic = false; ///< as in EngineChoices
    bool m_pcmFilterExplicit = false;
};
