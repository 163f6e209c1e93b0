// Compiles VBA modules with LibreOffice's Basic and prints what it rejects, a line each: file, line and message, with
// tabs between them. LibreOffice itself shows such messages in its windows only.
//
//     vba_compiler PROFILE_FOLDER FILE...
//
// No package has headers of the Basic library, so what is called of it is declared here; linking finds out whether a
// version of LibreOffice still has it.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

extern "C" {
struct rtl_uString;
struct rtl_String
{
    std::int32_t references;
    std::int32_t length;
    char text[1];
};
void rtl_string2UString(rtl_uString** result, const char* text, std::int32_t length, std::uint16_t encoding,
                        std::uint32_t flags);
std::int32_t rtl_uString_getLength(const rtl_uString* string);
const char16_t* rtl_uString_getStr(const rtl_uString* string);
void rtl_uString2String(rtl_String** result, const char16_t* text, std::int32_t length, std::uint16_t encoding,
                        std::uint32_t flags);
void* libreofficekit_hook_2(const char* programs, const char* profileUrl);
}

namespace rtl {
struct OUString
{
    rtl_uString* data = nullptr;
};
} // namespace rtl

template<typename Argument, typename Result>
struct Link
{
    Result (*function)(void* instance, Argument);
    void* instance;
};

class SbModule
{
public:
    bool Compile();
    bool IsCompiled() const;
};

class StarBASIC
{
public:
    StarBASIC(StarBASIC* parent, bool isDocument);
    SbModule* MakeModule(const rtl::OUString& name, const rtl::OUString& source);
    static void SetGlobalErrorHdl(const Link<StarBASIC*, bool>& handler);
    static std::int32_t GetLine();
    static const rtl::OUString& GetErrorText();

private:
    char members_[1 << 16]; // The size is not known; this is far more.
};

namespace {

const std::uint16_t kUtf8 = 76;
const std::string kVbaMode = "Option VBASupport 1\n";
const char* file = "";
int rejections = 0;

rtl::OUString wide(const std::string& text)
{
    const std::uint32_t lenient = 0x333;
    rtl::OUString result;
    rtl_string2UString(&result.data, text.data(), static_cast<std::int32_t>(text.size()), kUtf8, lenient);
    return result;
}

std::string narrow(const rtl::OUString& text)
{
    const std::uint32_t lenient = 0x566;
    rtl_String* result = nullptr;
    rtl_uString2String(&result, rtl_uString_getStr(text.data), rtl_uString_getLength(text.data), kUtf8, lenient);
    return result->text;
}

void reject(int line, std::string message)
{
    ++rejections;
    std::replace(message.begin(), message.end(), '\n', ' ');
    std::printf("%s\t%d\t%s\n", file, line, message.c_str());
}

bool goOnAfterError(void* /*instance*/, StarBASIC* /*basic*/)
{
    reject(StarBASIC::GetLine() - 1, narrow(StarBASIC::GetErrorText()));
    return true;
}

void compile(StarBASIC& basic)
{
    std::ifstream stream(file, std::ios::binary);
    const std::string source(std::istreambuf_iterator<char>(stream), {});
    const int before = rejections;
    SbModule* module = basic.MakeModule(wide(file), wide(kVbaMode + source));
    module->Compile();
    if (!module->IsCompiled() && rejections == before) {
        reject(1, "rejected without a message");
    }
}

} // namespace

int main(int count, char** arguments)
{
    setenv("SAL_USE_VCLPLUGIN", "svp", 1);
    if (count < 2 || libreofficekit_hook_2(LIBREOFFICE, (std::string("file://") + arguments[1]).c_str()) == nullptr) {
        std::fputs("LibreOffice does not start\n", stderr);
        return 2;
    }
    auto* basic = new StarBASIC(nullptr, false);
    StarBASIC::SetGlobalErrorHdl({goOnAfterError, nullptr});
    for (int number = 2; number < count; ++number) {
        file = arguments[number];
        compile(*basic);
    }
    std::fflush(stdout);
    // Without the destructors of LibreOffice, which want an office that runs.
    std::_Exit(rejections == 0 ? 0 : 1);
}
