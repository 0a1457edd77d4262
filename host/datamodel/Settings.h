#pragma once

#include "HostKitExport.h"

#include <QHash>
#include <QString>
#include <QVariant>
#include <filesystem>
#include <memory>
#include <mutex>

namespace Orvo::Kernel::Framework {
class EventBus;
}

namespace Orvo::UI::DataModel {

// The user's application settings: kept in one INI file of the user configuration directory,
// written as soon as a value changes, and announced on the event bus (SettingChangedEvent).
//
// A reader passes the default it would use itself; a setting the user never set, or one whose
// stored text is not a value of the setting's kind and range (a hand-edited file), gives that
// default back. A setter refuses such values, logs why and keeps the old one.
class HOSTKIT_EXPORT Settings
{
public:
    // Degrees the camera turns per pixel of a drag.
    static inline const QString c_rotationSensitivity = QStringLiteral("Interaction/RotationSensitivity");
    // The part of the distance to the target one wheel notch moves the camera.
    static inline const QString c_zoomSensitivity = QStringLiteral("Interaction/ZoomSensitivity");
    // Zooming moves along the line of sight rather than towards the pointer.
    static inline const QString c_zoomFollowCameraDirection
        = QStringLiteral("Interaction/ZoomFollowCameraDirection");
    // The nearest and farthest distance in metres the camera may come to its target.
    static inline const QString c_zoomNearestLimit = QStringLiteral("Interaction/ZoomNearestLimit");
    static inline const QString c_zoomFarthestLimit = QStringLiteral("Interaction/ZoomFarthestLimit");
    // How far in pixels from an object a click still picks it.
    static inline const QString c_objectPickingRadius = QStringLiteral("Interaction/ObjectPickingRadius");
    // Which renderer draws the model views (Orvo::Graphic::RendererType).
    static inline const QString c_rendererType = QStringLiteral("Graphics/RendererType");
    // The unit each quantity is shown in (a unit symbol; DisplayUnits checks it is one it offers).
    static inline const QString c_lengthUnit = QStringLiteral("Units/Length");
    static inline const QString c_forceUnit = QStringLiteral("Units/Force");
    static inline const QString c_momentUnit = QStringLiteral("Units/Moment");
    static inline const QString c_stressUnit = QStringLiteral("Units/Stress");
    // Which points the pointer snaps to in the model views.
    static inline const QString c_snapToNodes = QStringLiteral("Snapping/Nodes");
    static inline const QString c_snapToMidpoints = QStringLiteral("Snapping/Midpoints");
    static inline const QString c_snapToGrid = QStringLiteral("Snapping/Grid");
    static inline const QString c_snapToMembers = QStringLiteral("Snapping/Members");
    // The local user profile and the country whose standards and units apply.
    static inline const QString c_accountName = QStringLiteral("Account/Name");
    static inline const QString c_accountOrganisation = QStringLiteral("Account/Organisation");
    // The avatar's letters when the user chose them rather than have them derived from the name.
    static inline const QString c_accountInitials = QStringLiteral("Account/Initials");
    static inline const QString c_accountCountry = QStringLiteral("Account/Country");
    // The guided tour: the steps the user has seen (their ids, comma-separated), and whether the
    // tour was finished or skipped.
    static inline const QString c_tutorialSeen = QStringLiteral("Tutorial/Seen");
    static inline const QString c_tutorialDone = QStringLiteral("Tutorial/Done");

    explicit Settings(std::filesystem::path file,
                      std::shared_ptr<Kernel::Framework::EventBus> eventBus = nullptr);
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    double GetRotationSensitivity(double defaultValue) const;
    double GetZoomSensitivity(double defaultValue) const;
    bool GetZoomFollowCameraDirection(bool defaultValue) const;
    double GetZoomNearestLimit(double defaultValue) const;
    double GetZoomFarthestLimit(double defaultValue) const;
    double GetObjectPickingRadius(double defaultValue) const;
    int GetRendererType(int defaultValue) const;

    // The stored value of a known setting, converted to its kind; invalid when the user never
    // set it or the stored text is not acceptable.
    QVariant Value(const QString& key) const;
    // False (and nothing changes) for an unknown key or a value out of the setting's range.
    bool SetValue(const QString& key, const QVariant& value);
    // Forgets the user's value: readers get their default again.
    void Reset(const QString& key);

    const std::filesystem::path& File() const { return m_file; }

private:
    double Number(const QString& key, double defaultValue) const;
    void Write() const;
    void Announce(const QString& key) const;

    std::filesystem::path m_file;
    std::shared_ptr<Kernel::Framework::EventBus> m_eventBus;
    QHash<QString, QVariant> m_values;
    // Views read their interaction settings on the GUI thread, the renderer choice is read on
    // render threads.
    mutable std::mutex m_mutex;
};

} // namespace Orvo::UI::DataModel
