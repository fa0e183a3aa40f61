#include "engine/engine_library.h"

#include "platform/program_library.h"

#include <QCoreApplication>
#include <QFile>
#include <dlfcn.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace kelp {
namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("EngineLibrary", source);
}

} // namespace

EngineLibrary::EngineLibrary(QStringList candidates)
    : m_candidates(std::move(candidates))
{
}

EngineLibrary &EngineLibrary::ofProgram()
{
    // Never destroyed: an engine's thread may outlive the static objects.
    static EngineLibrary *const library =
        new EngineLibrary(candidatesFor(QCoreApplication::applicationDirPath()));
    return *library;
}

QStringList EngineLibrary::candidatesFor(const QString &programDir)
{
    return programLibraryPaths(programDir, u"libkelp_player_core.so"_s);
}

bool EngineLibrary::load()
{
    const std::lock_guard lock(m_mutex);
    return loadLocked();
}

bool EngineLibrary::loadLocked()
{
    if (m_main != nullptr)
        return true;
    m_error = translated(QT_TRANSLATE_NOOP("EngineLibrary", "找不到引擎库，已查找：%1"))
                  .arg(m_candidates.join(u", "_s));
    for (const QString &path : m_candidates) {
        if (!QFile::exists(path))
            continue;
        void *const handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL);
        if (handle != nullptr && resolve(handle, path))
            return true;
        if (handle == nullptr)
            m_error = translated(QT_TRANSLATE_NOOP("EngineLibrary", "无法加载引擎库：%1"))
                          .arg(QString::fromLocal8Bit(dlerror()));
        else
            dlclose(handle);
    }
    return false;
}

bool EngineLibrary::resolve(void *handle, const QString &path)
{
    const auto main = reinterpret_cast<MainEntry>(dlsym(handle, "kelp_player_main"));
    const auto probe = reinterpret_cast<ProbeEntry>(dlsym(handle, "kelp_player_probe"));
    if (main == nullptr || probe == nullptr) {
        m_error = translated(QT_TRANSLATE_NOOP("EngineLibrary", "引擎库缺少所需的两个入口：%1")).arg(path);
        return false;
    }
    m_main = main;
    m_probe = probe;
    m_error.clear();
    return true;
}

EngineLibrary::MainEntry EngineLibrary::mainEntry()
{
    const std::lock_guard lock(m_mutex);
    return loadLocked() ? m_main : nullptr;
}

EngineLibrary::ProbeEntry EngineLibrary::probeEntry()
{
    const std::lock_guard lock(m_mutex);
    return loadLocked() ? m_probe : nullptr;
}

QString EngineLibrary::errorText() const
{
    const std::lock_guard lock(m_mutex);
    return m_error;
}

} // namespace kelp
