#pragma once

#include <QApplication>

#include <array>
#include <gtest/gtest.h>
#include <memory>

namespace veyrand::test {

// Starts the toolkit once for a test program that includes this, off the screen.
class QtEnvironment final : public ::testing::Environment {
public:
    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        m_application = std::make_unique<QApplication>(m_count, m_arguments.data());
    }
    void TearDown() override { m_application.reset(); }

private:
    std::array<char, 6> m_name { "tests" };
    std::array<char*, 2> m_arguments { m_name.data(), nullptr };
    int m_count = 1;
    std::unique_ptr<QApplication> m_application;
};

// The test framework owns it.
inline ::testing::Environment* const kQtEnvironment
    = ::testing::AddGlobalTestEnvironment(new QtEnvironment);

} // namespace veyrand::test
