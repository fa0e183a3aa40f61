#include "app/language_install.h"

#include "app/language.h"

#include <QGuiApplication>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

bool installCatalogue(const QString &code)
{
    auto *translator = new QTranslator(qApp);
    if (translator->load(u":/i18n/%1.qm"_s.arg(code)))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

LanguageInstall installLanguage(const QString &code)
{
    LanguageInstall done{code, {}};
    if (code != "zh"_L1 && !installCatalogue(code)) {
        done.warning =
            u"ui-language: %1 的翻译表 %2 不在资源里 -> 退回 en"_s.arg(code, u":/i18n/%1.qm"_s.arg(code));
        done.code = u"en"_s;
        installCatalogue(done.code);
    }
    if (isRightToLeft(done.code))
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    return done;
}
