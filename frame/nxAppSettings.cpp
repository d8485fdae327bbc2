// nxApp: the application's settings in the registry.
#include "frame/nxAppState.h"
#include "frame/nxReg.h"

using namespace Qt::StringLiterals;

QString nxApp::RegPath(const QString& section, const QString& appName) {
    return u"Software\\Brontel Data\\"_s + (appName.isEmpty() ? AppName() : appName) + u'\\' +
           section;
}

vb::Variant nxApp::GetSetting(const QString& section, const QString& key,
                              const vb::Variant& defaultValue, const QString& appName,
                              win::HKey root) {
    const vb::Variant fallback = defaultValue.isMissing() ? vb::Variant() : defaultValue;
    const QString path = RegPath(section, appName);
    if (root != win::kHKeyCurrentUser) {
        nxReg reg;
        reg.RegOpen(root, path);
        return reg.GetVal(key, fallback);
    }
    {
        nxReg user;
        if (user.RegOpen(root, path)) {
            const vb::Variant value = user.GetVal(key, {});
            if (!value.isEmpty()) {
                return value;
            }
        }
    }
    // A machine-wide value is a default that moves into the user's settings at its first read.
    nxReg machine;
    machine.RegOpen(win::kHKeyLocalMachine, path);
    const vb::Variant value = machine.GetVal(key, {});
    if (value.isEmpty()) {
        return fallback;
    }
    SaveSetting(section, key, value, appName, win::kHKeyCurrentUser);
    return value;
}

void nxApp::SaveSetting(const QString& section, const QString& key, const vb::Variant& value,
                        const QString& appName, win::HKey root) {
    nxReg reg;
    reg.RegCreate(RegPath(section, appName.isEmpty() ? AppName() : appName), root);
    reg.SetVal(key, value);
}
