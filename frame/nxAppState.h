#pragma once

// The application object's data, shared by the files that make up nxApp; nothing else includes
// this header.

#include "frame/nxApp.h"
#include "frame/nxError.h"
#include "frame/nxLog.h"
#include "frame/nxMisc.h"
#include "frame/nxSys.h"
#include "frame/nxUtilsDll.h"

#include <QStringList>

#include <array>

struct nxApp::State {
    bool isInit = false;
    std::int32_t instance = 0;
    std::shared_ptr<const Host> host;
    QStringList params; // Param(0) .. Param(ParamCount)
    QString appName;    // the name set by the program, empty until then
    QString reservedWords;

    std::unique_ptr<nxMisc> misc;
    std::unique_ptr<nxSys> sys;
    std::unique_ptr<nxUtilsDll> utils;
    std::unique_ptr<nxError> lastError;
    std::unique_ptr<nxLog> tickLog;

    // The captions of the custom message boxes: kept from one box to the next, never cleared.
    std::array<QString, 4> captions;

    std::function<void()> doEvents;
    std::shared_ptr<win::MessageBoxService> box;
    std::shared_ptr<win::Registry> registry;
    std::shared_ptr<win::Shell> shell;
    std::shared_ptr<win::MousePointer> pointer;
};
