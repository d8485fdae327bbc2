#pragma once

#include "frame/nxApp.h"
#include "frame/nxError.h"

#include <gtest/gtest.h>

#include <string>

// "This member succeeded": on failure the message carries the reason the library recorded.
inline std::string lastErrorReport() {
    const nxError& e = nxApp::LastError();
    return "nxApp::LastError(): " + std::to_string(e.Number()) + " \"" +
           e.Description().toStdString() + "\" in " + e.Source().toStdString();
}

#define EXPECT_MEMBER_OK(expr) EXPECT_TRUE(expr) << lastErrorReport()
#define ASSERT_MEMBER_OK(expr) ASSERT_TRUE(expr) << lastErrorReport()
