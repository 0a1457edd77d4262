#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <filesystem>
#include <memory>
#include <vector>

namespace Orvo::UI::DataModel {
class Settings;
}

namespace Orvo::UI::UIComponents {

// The guided tour of the application's first steps: its steps, read from the shipped
// Configuration/Tutorial.xml, the step shown, and what the user has seen of it. Each step names
// the interface item it points at (by objectName) and the text identifiers of its title and text.
//
// What the user has seen is kept in the host's settings: the steps shown, and whether the tour
// was finished or skipped. A finished or skipped tour does not start again until the user asks
// for it (restart); an interrupted one resumes at the first step not seen yet.
class TutorialToolTipData : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int count READ count NOTIFY stepsChanged)
    // The step shown; -1 while the tour is not running.
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentChanged)
    Q_PROPERTY(bool running READ running NOTIFY currentChanged)
    Q_PROPERTY(bool isFirst READ isFirst NOTIFY currentChanged)
    Q_PROPERTY(bool isLast READ isLast NOTIFY currentChanged)
    // The objectName of the item the step points at.
    Q_PROPERTY(QString targetName READ targetName NOTIFY currentChanged)
    // The step's title and text, in the user's language.
    Q_PROPERTY(QString title READ title NOTIFY currentChanged)
    Q_PROPERTY(QString text READ text NOTIFY currentChanged)
    // The tour was finished or skipped.
    Q_PROPERTY(bool done READ done NOTIFY doneChanged)

public:
    struct Step
    {
        QString id;
        QString target;
        QString titleId;
        QString textId;
    };

    static constexpr const char* c_fileName = "Tutorial.xml";

    explicit TutorialToolTipData(QObject* parent = nullptr);
    ~TutorialToolTipData() override;

    int count() const { return int(m_steps.size()); }
    int currentIndex() const { return m_current; }
    bool running() const { return m_current >= 0; }
    bool isFirst() const { return m_current == 0; }
    bool isLast() const { return m_current >= 0 && m_current == count() - 1; }
    QString targetName() const;
    QString title() const;
    QString text() const;
    bool done() const;

    // Starts the tour unless it was finished or skipped; resumes at the first step not seen.
    // False when it does not start.
    Q_INVOKABLE bool start();
    // The next step; after the last, the tour is finished.
    Q_INVOKABLE void next();
    // The step before; stays on the first.
    Q_INVOKABLE void back();
    // Ends the tour for good.
    Q_INVOKABLE void skip();
    // Forgets what the user has seen and starts at the first step.
    Q_INVOKABLE void restart();
    // Stops the tour without ending it (the user went where its items are not); start resumes.
    Q_INVOKABLE void pause();

    // The panel could show the step (its item is in the window): it counts as seen.
    void MarkSeen();
    // The panel cannot show the step (its item is not in the window): moves on in the direction
    // the user went. A tour none of whose steps could be shown stops without counting as done,
    // so that it starts again later.
    void PassOver();

    // Replace the steps (the shipped file is read on construction); a running tour stops.
    void SetSteps(std::vector<Step> steps);
    // Throw std::invalid_argument when the file cannot be read or is not a tour, XmlAttributeError
    // when a step lacks an attribute.
    static std::vector<Step> ReadSteps(const std::filesystem::path& file);
    static std::vector<Step> ReadStepsFromString(const std::wstring& xml);
    const std::vector<Step>& Steps() const { return m_steps; }

signals:
    void stepsChanged();
    void currentChanged();
    void doneChanged();

private:
    void Show(int index);
    void Finish();
    QStringList Seen() const;

    std::vector<Step> m_steps;
    int m_current = -1;
    // +1 when the user went forward, -1 back: a step that cannot be shown is passed that way.
    int m_direction = 1;
    bool m_shownThisRun = false;
    std::shared_ptr<DataModel::Settings> m_settings;
};

} // namespace Orvo::UI::UIComponents
