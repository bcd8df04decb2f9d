#include "platform/desktop/settings.h"

#include "platform/desktop/ini_file.h"
#include "platform/error.h"

#ifdef Q_OS_WIN
#include <QSettings>
#endif
#include <QStandardPaths>

namespace platform {

QString settingsPlace(const QString& application) {
#ifdef Q_OS_WIN
    return QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\") + application;
#else
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u'/' + application +
           QStringLiteral(".ini");
#endif
}

QString settingsTrouble(const QString& application) {
#ifdef Q_OS_WIN
    Q_UNUSED(application);
    return {};
#else
    return iniTrouble(settingsPlace(application));
#endif
}

QString UserSettings::read(const QString& application, const QString& section, const QString& key,
                           const QString& fallback) const {
#ifdef Q_OS_WIN
    const QSettings store(settingsPlace(application), QSettings::NativeFormat);
    return store.value(section + u'/' + key, fallback).toString();
#else
    return readIni(settingsPlace(application), section, key).value_or(fallback);
#endif
}

void UserSettings::write(const QString& application, const QString& section, const QString& key,
                         const QString& value) {
#ifdef Q_OS_WIN
    QSettings store(settingsPlace(application), QSettings::NativeFormat);
    store.setValue(section + u'/' + key, value);
#else
    const QString file = settingsPlace(application);
    if (const QString trouble = settingsTrouble(application); !trouble.isEmpty())
        throw RuntimeError(ErrorCode::FileNotFound,
                           QStringLiteral("Cannot change '%1': %2.").arg(file, trouble));
    if (!writeIni(file, section, key, value))
        throw RuntimeError(ErrorCode::FileNotFound, QStringLiteral("Cannot write '%1'.").arg(file));
#endif
}

}  // namespace platform
