#pragma once

#include <QString>

namespace platform {

/// The per-user settings store, read by application, section and key.
class Settings {
   public:
    virtual ~Settings() = default;
    /// The stored text, or the fallback where nothing is stored.
    virtual QString read(const QString& application, const QString& section, const QString& key,
                         const QString& fallback) const = 0;
    virtual void write(const QString& application, const QString& section, const QString& key,
                       const QString& value) = 0;
};

/// The store of the platform: an INI file named after the application in the user's configuration
/// directory, or on Windows the per-user registry place for program settings.
class UserSettings final : public Settings {
   public:
    QString read(const QString& application, const QString& section, const QString& key,
                 const QString& fallback) const override;
    void write(const QString& application, const QString& section, const QString& key,
               const QString& value) override;
};

/// Where the application's settings are kept, for messages to people.
QString settingsPlace(const QString& application);

/// Why the settings cannot be read, empty where they can.
QString settingsTrouble(const QString& application);

}  // namespace platform
