#include "view/PageFile.h"

#include "view/scriptTexts.h"
#include "view/scripts.h"

#include <QByteArrayList>
#include <QCryptographicHash>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace inkmacro::view {

namespace {

QByteArray together(const std::initializer_list<texts::Named>& parts)
{
    QByteArray all;
    for (const texts::Named& part : parts)
        all += part.text;
    return all;
}

/// As a policy names a text.
QByteArray sourceOf(const QByteArray& text)
{
    return "'sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64() + '\'';
}

QByteArray scriptElement(const texts::Named& script)
{
    return QByteArray("<script>") + script.text + "</script>\n";
}

QByteArray scriptElements(const std::initializer_list<texts::Named>& scripts)
{
    QByteArray elements;
    for (const texts::Named& script : scripts)
        elements += scriptElement(script);
    return elements;
}

/// The first scripts of a page, up to this one, stand in it as they are and open the others.
constexpr char kLoader[] = "loader.js";

struct PageScripts
{
    QByteArray elements;
    QJsonArray packed; ///< texts
};

PageScripts pageScripts()
{
    PageScripts scripts;
    bool isLoaded = false;
    for (const texts::Named& script : texts::pageScripts) {
        if (isLoaded)
            scripts.packed.append(QString::fromUtf8(script.text));
        else
            scripts.elements += scriptElement(script);
        isLoaded = isLoaded || qstrcmp(script.name, kLoader) == 0;
    }
    return scripts;
}

/// The document in which macros run. It has no policy of its own: a document that is given as a text has that of the
/// page around it.
QByteArray frameDocument()
{
    return "<!doctype html>\n<meta charset=\"utf-8\">\n<title>macro</title>\n" + scriptElements(texts::webScripts) +
           scriptElements(texts::frameScripts);
}

QByteArray policy(const std::vector<QByteArray>& macroScripts)
{
    QByteArrayList scripts;
    for (const auto& part : {texts::webScripts, texts::frameScripts, texts::pageScripts})
        for (const texts::Named& script : part)
            scripts.append(sourceOf(script.text));
    // Both forms of a macro may be the same.
    for (const QByteArray& macro : macroScripts)
        if (const QByteArray source = sourceOf(macro); !scripts.contains(source))
            scripts.append(source);
    return "default-src 'none'; script-src " + scripts.join(' ') + "; style-src " + sourceOf(together(texts::styles)) +
           "; img-src data: blob:; frame-src 'none'; base-uri 'none'; form-action 'none'; "
           "require-trusted-types-for 'script'; trusted-types page frame macro";
}

/// Whether a character is shown as its number, since it has no look of its own or changes that of its neighbours.
bool isUnseen(QChar letter)
{
    const ushort code = letter.unicode();
    if (code == '\n' || code == '\t')
        return false;
    static constexpr std::pair<ushort, ushort> ranges[] = {
        {0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},     {0x61C, 0x61C},   {0x115F, 0x1160}, {0x17B4, 0x17B5},
        {0x180B, 0x180F}, {0x200B, 0x200F}, {0x2028, 0x202E}, {0x2060, 0x206F}, {0x3164, 0x3164}, {0xFE00, 0xFE0F},
        {0xFEFF, 0xFEFF}, {0xFFA0, 0xFFA0}, {0xFFF9, 0xFFFB}, {0xDB40, 0xDB40}, // that of tags
    };
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [code](const auto& range) { return code >= range.first && code <= range.second; });
}

} // namespace

QString escapedForPage(const QString& text)
{
    QString shown;
    shown.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar letter = text[i];
        const bool isPair =
            !isUnseen(letter) && letter.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            shown += text.midRef(i++, 2);
        else if (isUnseen(letter) || letter.isSurrogate())
            shown += QString("\\u%1").arg(letter.unicode(), 4, 16, QChar('0'));
        else
            shown += letter;
    }
    return shown.toHtmlEscaped();
}

QByteArray scriptOfMacro(const QByteArray& macro)
{
    const int begin = macro.lastIndexOf("<script type=\"text/javascript\">");
    if (begin < 0)
        return {};
    const int from = macro.indexOf('>', begin) + 1;
    const int end = macro.indexOf("</script>", from);
    // As a browser reads it: bytes that are no text become the sign for that. A byte of zero ends no text.
    return QString::fromUtf8(macro.constData() + from, (end < 0 ? macro.size() : end) - from).toUtf8();
}

PageFile::PageFile(QIODevice& device, const QString& title, const QString& plain,
                   const std::vector<QByteArray>& macroScripts)
    : device_(device)
{
    device_.write("<!doctype html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                  "<meta http-equiv=\"Content-Security-Policy\" content=\"" +
                  policy(macroScripts) +
                  "\">\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                  "<meta name=\"color-scheme\" content=\"light dark\">\n<title>" +
                  escapedForPage(title).toUtf8() + "</title>\n<style>" + together(texts::styles) +
                  "</style>\n</head>\n<body>\n" + together(texts::markup) + "<noscript>\n" + plain.toUtf8() +
                  "</noscript>\n");
}

void PageFile::addIsland(const QByteArray& name, const QByteArray& bytes)
{
    // No browser has strings of any length; a piece decodes by itself.
    constexpr int piece = 24 * 1024 * 1024;
    static_assert(piece % 3 == 0);
    constexpr int lengthInFront = 4; // which Qt writes before a stream of zlib
    // Three times as fast as the best one for a fifth more of length, which counts where there is much.
    constexpr int much = 4 * 1024 * 1024;
    constexpr int fastLevel = 1;
    constexpr int bestLevel = 9;
    const QByteArray packed = qCompress(bytes, bytes.size() > much ? fastLevel : bestLevel).mid(lengthInFront);
    for (int at = 0, number = 0; at == 0 || at < packed.size(); at += piece, ++number) {
        device_.write("<script type=\"application/octet-stream\" id=\"" + name +
                      (number > 0 ? '.' + QByteArray::number(number) : QByteArray()) + "\">");
        device_.write(packed.mid(at, piece).toBase64());
        device_.write("</script>\n");
    }
}

void PageFile::finish()
{
    addIsland("frame", frameDocument());
    addIsland("tables", tableTexts());
    const PageScripts scripts = pageScripts();
    addIsland("scripts", QJsonDocument(scripts.packed).toJson(QJsonDocument::Compact));
    device_.write(scripts.elements + "</body>\n</html>\n");
}

} // namespace inkmacro::view
