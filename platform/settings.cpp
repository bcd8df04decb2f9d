#include "platform/settings.h"

#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace platform {

namespace {

#ifdef Q_OS_WIN
constexpr auto format = QSettings::NativeFormat;
#else
constexpr auto format = QSettings::IniFormat;
#endif

}  // namespace

QString settingsPlace(const QString& application) {
#ifdef Q_OS_WIN
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\") + application;
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + application +
           QStringLiteral(".ini");
#endif
}

QString UserSettings::read(const QString& application, const QString& section, const QString& key,
                           const QString& fallback) const {
    const QSettings store(settingsPlace(application), format);
    const QVariant value = store.value(section + u'/' + key);
    if (!value.isValid())
        return fallback;
    // An unquoted comma in an INI file reads as a list; the text the writer meant had the comma in it.
    return value.toStringList().join(QStringLiteral(", "));
}

void UserSettings::write(const QString& application, const QString& section, const QString& key,
                         const QString& value) {
    QSettings store(settingsPlace(application), format);
    store.setValue(section + u'/' + key, value);
}

}  // namespace platform
