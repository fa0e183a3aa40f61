#include "player_core/output/sound_server.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

using namespace kelp_core;

namespace {

namespace fs = std::filesystem;

/// A machine of its own, without any trace of a sound server at first.
class SoundServer : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "kelp-server-XXXXXX").string();
        ASSERT_TRUE(mkdtemp(pattern.data()));
        m_root = pattern;
        m_environment = {{"HOME", home()}, {"XDG_RUNTIME_DIR", m_root + "/mine"}, {"DISPLAY", ":0"}};
    }
    void TearDown() override { fs::remove_all(m_root); }

    std::string home() const { return m_root + "/home/me"; }
    bool mayExist() const
    {
        return soundServerMayExist({[this](const char *name) -> const char * {
                                        const auto found = m_environment.find(name);
                                        return found == m_environment.end() ? nullptr : found->second.c_str();
                                    },
                                    m_root});
    }
    /// \param path absolute, on that machine
    void write(const std::string &path, const std::string &text = {}) const
    {
        fs::create_directories(fs::path(m_root + path).parent_path());
        std::ofstream(m_root + path) << text;
    }

    std::string m_root;
    std::map<std::string, std::string> m_environment;
};

} // namespace

TEST_F(SoundServer, WithoutATraceThereIsNone)
{
    EXPECT_FALSE(mayExist());
    m_environment.clear();
    EXPECT_FALSE(mayExist());
}

TEST_F(SoundServer, TheEnvironmentTellsOfOne)
{
    for (const char *name :
         {"PULSE_SERVER", "PULSE_CLIENTCONFIG", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) {
        m_environment[name] = "";
        EXPECT_FALSE(mayExist()) << name;
        m_environment[name] = "x";
        EXPECT_TRUE(mayExist()) << name;
        m_environment.erase(name);
    }
}

TEST_F(SoundServer, AnotherMachinesDisplayHasOneOfItsOwn)
{
    for (const char *here : {"", ":0", ":12.1", "unix:0"}) {
        m_environment["DISPLAY"] = here;
        EXPECT_FALSE(mayExist()) << here;
    }
    m_environment["DISPLAY"] = "localhost:10.0"; // as it comes through ssh
    EXPECT_TRUE(mayExist());
}

TEST_F(SoundServer, OneThatRunsHasASocket)
{
    for (const char *socket :
         {"/mine/pulse/native", "/run/pulse/native", "/var/run/pulse/native", "/run/user/1000/pulse/native",
          "/home/me/.config/pulse/0123-runtime/native", "/home/me/.pulse/0123-runtime/native"}) {
        write(socket);
        EXPECT_TRUE(mayExist()) << socket;
        fs::remove(m_root + socket);
        EXPECT_FALSE(mayExist()) << socket;
    }
    m_environment["XDG_CONFIG_HOME"] = m_root + "/elsewhere";
    write("/elsewhere/pulse/0123-runtime/native");
    EXPECT_TRUE(mayExist());
}

TEST_F(SoundServer, AConfigurationMayNameOne)
{
    const char *untouched = "# default-server =\n; autospawn = yes\nautospawn = no\nenable-memfd = yes\n";
    for (const char *file : {"/etc/pulse/client.conf", "/etc/pulse/client.conf.d/10-mine.conf",
                             "/home/me/.config/pulse/client.conf", "/home/me/.pulse/client.conf"}) {
        write(file, untouched);
        EXPECT_FALSE(mayExist()) << file;
        write(file, std::string(untouched) + "  default-server = tcp:box");
        EXPECT_TRUE(mayExist()) << file;
        write(file, "auto-connect-localhost = yes\n");
        EXPECT_TRUE(mayExist()) << file;
        fs::remove(m_root + file);
    }
}

TEST_F(SoundServer, WhatIsNoFolderOrNoTextIsNoTrace)
{
    write("/run/user", "a file");
    write("/home/me/.config/pulse", "a file");
    write("/etc/pulse/client.conf", std::string(1 << 20, '\0'));
    fs::create_directories(m_root + "/home/me/.pulse/client.conf");
    EXPECT_FALSE(mayExist());
}
