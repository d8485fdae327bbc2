#include "platform/win/Registry.h"

#ifdef _WIN32
#include "platform/win/Win32Registry.h"
#else
#include "platform/win/FileRegistry.h"

#include <QStandardPaths>
#endif

using namespace Qt::StringLiterals;

namespace win {

std::shared_ptr<Registry> systemRegistry() {
#ifdef _WIN32
    return std::make_shared<Win32Registry>();
#else
    QString folder = qEnvironmentVariable("UPSIZER_REGISTRY_DIR");
    if (folder.isEmpty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 u"/upsizer/registry"_s;
    }
    return std::make_shared<FileRegistry>(folder);
#endif
}

} // namespace win
