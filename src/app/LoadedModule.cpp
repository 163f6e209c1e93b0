#include "app/LoadedModule.h"

#include "host/kernel/CFxServices.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

#include <dlfcn.h>

namespace inkmacro {

namespace {

/// With its version: the file without it is there only where hosts are developed.
const char* const libraryName = INKMACRO_MODULE;

[[noreturn]] void fail(const QString& message)
{
    throw std::runtime_error(message.toStdString());
}

/// Where the host library was loaded from: it is installed into the same folder as the module, whatever that folder is
/// called here.
QString hostLibraryFolder()
{
    Dl_info info = {};
    if (!dladdr(reinterpret_cast<const void*>(&GetFxSystemServices), &info) || !info.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).absolutePath();
}

QString findLibrary()
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QStringList folders{program.path(), program.filePath("../lib"), hostLibraryFolder()};
    for (const QString& folder : folders)
        if (const QFileInfo file(QDir(folder), libraryName); !folder.isEmpty() && file.exists())
            return file.absoluteFilePath();
    fail(QString("the module %1 is neither in %2 nor in ../lib beside it").arg(libraryName, program.path()));
}

template<class Function>
Function resolve(QLibrary& library, const char* symbol)
{
    const auto function = reinterpret_cast<Function>(library.resolve(symbol));
    if (!function)
        fail(QString("the module cannot be loaded: %1").arg(library.errorString()));
    return function;
}

} // namespace

void loadModuleAhead()
{
    try {
        QLibrary(findLibrary()).load();
    } catch (const std::runtime_error&) {
    }
}

LoadedModule::LoadedModule()
{
    QLibrary library(findLibrary());
    const unsigned version = resolve<decltype(&odrxGetAPIVersion)>(library, "odrxGetAPIVersion")();
    if (version != odrxApiVersion)
        fail(QString("the module %1 has interface version %2, wanted is %3")
                 .arg(library.fileName(), QString::number(version), QString::number(odrxApiVersion)));

    const auto create = resolve<decltype(&odrxCreateModuleObject)>(library, "odrxCreateModuleObject");
    const OdSmartPtr<OdRxModule> module(create("inkmacro"), kOdRxObjAttach);
    if (!module || module->isA()->name() != "CFxConverterIWAPIModule")
        fail(QString("the module %1 is no macro writer").arg(library.fileName()));
    module_ = static_cast<CFxConverterIWAPIModule*>(module.get());
    module_->initApp();
}

LoadedModule::~LoadedModule()
{
    module_->uninitApp();
}

} // namespace inkmacro
