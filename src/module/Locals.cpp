#include "module/Locals.h"

#include "module/codeNames.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <utility>

namespace inkmacro {

namespace {

using namespace codeCharacters;

inline bool isPair(QStringView text, qsizetype at, char first, char second)
{
    return at + 1 < text.size() && text[at] == first && text[at + 1] == second;
}

qsizetype behindBlanks(QStringView text, qsizetype at)
{
    while (at < text.size() && (text[at] == ' ' || text[at] == '\t'))
        ++at;
    return at;
}

using Names = QVarLengthArray<QStringView, 4>;

/// `Dim a(2) As Double`.
void findInBasic(QStringView line, Names& found)
{
    constexpr QStringView dim = u"Dim ";
    if (!isPair(line, 0, 'D', 'i') || !line.startsWith(dim))
        return;
    if (const QStringView name = nameAt(line, dim.size()); !name.isEmpty())
        found.append(name);
}

bool isType(QStringView word)
{
    static constexpr std::array<QStringView, 9> others{u"return", u"delete", u"else",   u"new",   u"throw",
                                                       u"goto",   u"public", u"static", u"extern"};
    return !word.isEmpty() && !word.front().isDigit() && std::find(others.begin(), others.end(), word) == others.end();
}

/// Behind a type: dots, colons and what stands in its brackets belong to it. Behind anything else when no type stands
/// there.
qsizetype behindType(QStringView line)
{
    qsizetype at = 0;
    do {
        const auto other = [](QChar character) { return !isOneOf(kNamePart | kDot, character); };
        at = std::find_if(line.begin() + at, line.end(), other) - line.begin();
    } while (isPair(line, at, ':', ':') && (at += 2));
    return isPair(line, at, '[', ']') ? at + 2 : at;
}

/// `Type a, b = 1;`, where a star may stand on either side of the blank.
void findInCurly(QStringView line, Names& found)
{
    const qsizetype typeEnd = behindType(line);
    qsizetype at = typeEnd;
    const auto passStars = [&] {
        while (at < line.size() && (line[at] == ' ' || line[at] == '*'))
            ++at;
    };
    passStars();
    // Of most lines only so much is looked at.
    if (at == typeEnd || at == line.size() || !isNamePart(line[at]) || !isType(nameAt(line, 0)))
        return;
    Names names;
    for (bool more = true; more;) {
        const QStringView name = nameAt(line, at);
        const qsizetype behind = behindBlanks(line, at + name.size());
        if (name.isEmpty() || name.front().isDigit() || behind >= line.size())
            return;
        names.append(name);
        more = line[behind] == ',';
        if (!more && !QStringView(u";=(").contains(line[behind]))
            return;
        at = behind + 1;
        passStars();
    }
    found = names;
}

Names declarationsIn(QStringView line, Target target)
{
    Names found;
    if (isBasic(target))
        findInBasic(line, found);
    else
        findInCurly(line, found);
    return found;
}

/// The larger one takes the other one in.
void unite(QHash<QString, std::size_t>& names, QHash<QString, std::size_t>& others)
{
    if (names.size() < others.size())
        names.swap(others);
    for (auto other = others.cbegin(); other != others.cend(); ++other)
        names.insert(other.key(), other.value());
}

} // namespace

Locals::Locals(Target target) : target_(target), scopes_(1)
{
}

bool Locals::isReserved(const QString& name) const
{
    return target_ == Target::Vba && name == QLatin1String("line");
}

void Locals::followBlocks(QStringView text)
{
    if (target_ == Target::Vba)
        return;
    int opened = 0;
    int closed = 0;
    if (target_ == Target::VbNet) {
        // Most lines begin with none of the words below.
        if (text.isEmpty() || !QStringView(u"EIFPN").contains(text.front()))
            return;
        const bool otherwise = text.startsWith(u"Else");
        opened = otherwise || (text.startsWith(u"If ") && text.endsWith(u" Then")) || text.startsWith(u"For ") ||
                 text.startsWith(u"Public Sub ");
        closed = otherwise || text.startsWith(u"End If") || text.startsWith(u"End Sub") || text.startsWith(u"Next");
    } else if (!text.isEmpty() && (text.front() == '{' || text.front() == '}' || text.back() == '{')) {
        opened = static_cast<int>(std::count(text.begin(), text.end(), QChar('{')));
        closed = static_cast<int>(std::count(text.begin(), text.end(), QChar('}')));
    }
    if (opened + closed == 0)
        return;
    const auto close = [this] {
        if (scopes_.size() < 2)
            return;
        Scope inner = std::move(scopes_.back());
        scopes_.pop_back();
        unite(inner.inside, inner.declared);
        unite(scopes_.back().inside, inner.inside);
    };
    const bool closesFirst = target_ == Target::VbNet || text.startsWith(u'}');
    for (; closesFirst && closed > 0; --closed)
        close();
    scopes_.resize(scopes_.size() + static_cast<std::size_t>(opened));
    for (; closed > 0; --closed)
        close();
}

/// C++ hides an outer local behind an inner one; .NET's languages do not allow it, not even when the inner one stands
/// in front.
bool Locals::conflicts(const QString& name) const
{
    if (scopes_.back().declared.contains(name))
        return true;
    if (target_ == Target::Cpp || target_ == Target::CppCom)
        return false;
    if (scopes_.back().inside.contains(name))
        return true;
    return std::any_of(scopes_.begin(), scopes_.end() - 1,
                       [&](const Scope& scope) { return scope.declared.contains(name); });
}

QString Locals::keyOf(QStringView name) const
{
    return isBasic(target_) ? name.toString().toLower() : name.toString();
}

const QString* Locals::otherNameOf(const QString& name) const
{
    const auto scope = std::find_if(scopes_.rbegin(), scopes_.rend(), [&](const Scope& one) {
        return one.renamed.contains(name) || one.declared.contains(name);
    });
    if (scope == scopes_.rend())
        return nullptr;
    const auto found = scope->renamed.constFind(name);
    return found == scope->renamed.constEnd() ? nullptr : &found.value();
}

std::size_t Locals::declaresTwice(QStringView line, std::size_t number)
{
    if (target_ == Target::JavaScript)
        return 0;
    const QStringView text = trimmed(line);
    followBlocks(text);
    std::size_t twice = 0;
    for (const QStringView name : declarationsIn(text, target_)) {
        const QString key = keyOf(name);
        Scope& scope = scopes_.back();
        if (twice == 0 && (conflicts(key) || isReserved(key)))
            twice =
                target_ == Target::VbNet && !scope.declared.contains(key) ? scope.inside.value(key, number) : number;
        scope.declared.insert(key, number);
    }
    return twice;
}

QString Locals::toldApart(const QString& line)
{
    if (target_ == Target::JavaScript)
        return line;
    const QStringView text = trimmed(line);
    followBlocks(text);
    for (const QStringView name : declarationsIn(text, target_)) {
        const QString key = keyOf(name);
        Scope& scope = scopes_.back();
        if (conflicts(key) || isReserved(key))
            scope.renamed[key] = QString("%1_v%2").arg(name).arg(++counts_[key] + 1);
        scope.declared.insert(key, 0);
    }
    return counts_.isEmpty() ? line : withOtherNames(line);
}

QString Locals::withOtherNames(const QString& line) const
{
    const QStringView text(line);
    QString changed;
    qsizetype copied = 0;
    forNames(text, target_, [&](QStringView name, qsizetype at) {
        const QString* const other = otherNameOf(keyOf(name));
        if (!other)
            return;
        changed += text.mid(copied, at - copied);
        changed += *other;
        copied = at + name.size();
    });
    return changed += text.mid(copied);
}

} // namespace inkmacro
