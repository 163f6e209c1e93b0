// Compiles VBA modules with LibreOffice's Basic and prints what it complains of:
//
//     basic_compile LIBRARY_FOLDER PROFILE_FOLDER FILE...        FILE<tab>LINE<tab>COMPLAINT
//
// LibreOffice itself shows such complaints in a dialog only. Its classes have no public headers: exported operations are
// called by their mangled names, and objects are memory that is never freed. Ends with 77 where a name is missing.

#include <dlfcn.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace {

struct Text; // rtl_uString

/// rtl::OUString.
struct String
{
    Text* text = nullptr;
};

/// Link<StarBASIC*, bool>.
struct Handler
{
    bool (*function)(void*, void*);
    void* instance;
};

void* library = nullptr;

template<class Function>
Function find(const char* name)
{
    void* const found = dlsym(library, name);
    if (!found) {
        std::fprintf(stderr, "this LibreOffice has no %s\n", name);
        std::exit(77);
    }
    return reinterpret_cast<Function>(found);
}

String fromUtf8(const std::string& text)
{
    constexpr std::uint32_t utf8 = 76;
    constexpr std::uint32_t ordinary = 0x333; // what is malformed becomes another character
    static const auto convert =
        find<void (*)(Text**, const char*, std::int32_t, std::uint32_t, std::uint32_t)>("rtl_string2UString");
    String result;
    convert(&result.text, text.data(), static_cast<std::int32_t>(text.size()), utf8, ordinary);
    return result;
}

std::string toAscii(const String& string)
{
    static const auto length = find<std::int32_t (*)(const Text*)>("rtl_uString_getLength");
    static const auto buffer = find<const char16_t* (*)(const Text*)>("rtl_uString_getStr");
    std::string result;
    for (std::int32_t i = 0; i < length(string.text); ++i) {
        const char16_t c = buffer(string.text)[i];
        result += c < ' ' ? ' ' : c < 127 ? static_cast<char>(c) : '?';
    }
    return result;
}

/// Of the module being compiled.
const char* file = nullptr;
bool complained = false;

bool complain(void*, void*)
{
    static const auto line = find<std::int32_t (*)()>("_ZN9StarBASIC7GetLineEv");
    static const auto text = find<const String& (*)()>("_ZN9StarBASIC12GetErrorTextEv");
    std::printf("%s\t%d\t%s\n", file, line() - 1, toAscii(text()).c_str()); // behind the line that is put in front
    complained = true;
    return true; // go on
}

void compile()
{
    static const auto construct = find<void (*)(void*, void*, bool)>("_ZN9StarBASICC1EPS_b");
    static const auto enableVba = find<void (*)(void*, bool)>("_ZN9StarBASIC13SetVBAEnabledEb");
    static const auto makeModule = find<void* (*)(void*, const String&, const String&)>(
        "_ZN9StarBASIC10MakeModuleERKN3rtl8OUStringES3_");
    static const auto compileModule = find<bool (*)(void*)>("_ZN8SbModule7CompileEv");
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    constexpr std::size_t enough = 1 << 16; // for an object whose size no header tells
    void* const basic = std::calloc(1, enough);
    construct(basic, nullptr, false);
    enableVba(basic, true);
    complained = false;
    void* const module = makeModule(basic, fromUtf8("Module"), fromUtf8("Option VBASupport 1\n" + text));
    if (!compileModule(module) && !complained)
        std::printf("%s\t0\tis rejected\n", file);
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 3)
        return 2;
    const std::string folder = arguments[1];
    library = dlopen((folder + "/libmergedlo.so").c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (!library) {
        std::fprintf(stderr, "%s\n", dlerror());
        return 2;
    }
    setenv("SAL_USE_VCLPLUGIN", "svp", 1);
    const auto begin = find<void* (*)(const char*, const char*)>("libreofficekit_hook_2");
    if (!begin(folder.c_str(), ("file://" + std::string(arguments[2])).c_str()))
        return 2;
    const Handler handler{complain, nullptr};
    find<void (*)(const Handler&)>("_ZN9StarBASIC17SetGlobalErrorHdlERK4LinkIPS_bE")(handler);
    for (int i = 3; i < count; ++i) {
        file = arguments[i];
        compile();
    }
    std::fflush(stdout);
    std::_Exit(0); // an orderly end would want the memory of the objects to be theirs
}
