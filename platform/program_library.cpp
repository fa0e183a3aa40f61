#include "platform/program_library.h"

#include <QDir>
#include <QFile>
#include <dlfcn.h>

using namespace Qt::StringLiterals;

QStringList programLibraryPaths(const QString &programDir, const QString &fileName)
{
    QStringList paths;
    for (const QString &folder : {u"."_s, u"../lib/kelp-player"_s, u"../lib"_s})
        paths.append(QDir::cleanPath(QDir(programDir).filePath(folder + u'/' + fileName)));
    return paths;
}

void *loadLibrary(const QStringList &paths, QString &error)
{
    QString reason = u"not found: "_s + paths.join(u", "_s);
    for (const QString &path : paths) {
        if (!QFile::exists(path))
            continue;
        if (void *const library = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_LOCAL))
            return library;
        reason = QString::fromLocal8Bit(dlerror());
    }
    error = reason;
    return nullptr;
}

void *findLibraryEntry(void *library, const char *name, QString &error)
{
    void *const entry = dlsym(library, name);
    if (!entry)
        error = QString::fromLocal8Bit(dlerror());
    return entry;
}
