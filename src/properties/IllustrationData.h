#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace Orvo::UI::UIComponents {

// The picture or drawing that explains the property the user is working on (what h and b measure on a
// cross-section, what each support type holds), shown below the properties list.
class IllustrationData : public QObject
{
    Q_OBJECT
    QML_NAMED_ELEMENT(IllustrationData)
    Q_PROPERTY(QString source READ source NOTIFY sourceChanged)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString subject READ subject NOTIFY subjectChanged)
    Q_PROPERTY(bool available READ isAvailable NOTIFY availableChanged)

public:
    explicit IllustrationData(QObject* parent = nullptr);

    QString source() const { return m_source; }
    QString title() const { return m_title; }
    // The key of the property being explained, so that a drawing can mark its part.
    QString subject() const { return m_subject; }
    bool isAvailable() const { return !m_source.isEmpty(); }

    // Shows the illustration at relativePath below the application directory: an image, or a
    // QML drawing. A missing file is logged and shows nothing.
    void Show(const QString& title, const QString& relativePath, const QString& subject);
    void Clear();

signals:
    void sourceChanged();
    void titleChanged();
    void subjectChanged();
    void availableChanged();

private:
    void Set(const QString& title, const QString& source, const QString& subject);

    QString m_source;
    QString m_title;
    QString m_subject;
};

} // namespace Orvo::UI::UIComponents
