#include "module/ProcedureLanguage.h"

#include "module/codeNames.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <limits>

namespace inkmacro {

namespace {

class VbaProcedures : public ProcedureLanguage
{
public:
    /// So many that a procedure stays far below the 64 KB of compiled code that VBA takes. That of a line is hardly
    /// longer than the line.
    Limits limits() const override { return {250, 32 * 1024}; }
    bool isNested() const override { return false; }
    std::string_view keyword() const override { return "Dim "; }

    bool goesOn(QStringView line) override { return line.endsWith(u" _"); }
    Shape shapeOf(QStringView statement) const override
    {
        return {placeOf(statement), statement.endsWith(u"Exit For"), statement.endsWith(u"Exit Sub")};
    }

    QString call(int procedure) const override { return QString("RecordedActions%1").arg(procedure); }
    QString opening(int procedure) const override { return "Private Sub " + call(procedure) + "()"; }
    QString closing() const override { return "End Sub"; }
    QString indentation() const override { return "    "; }

    Names declaredIn(QStringView line) const override
    {
        const QStringView code = trimmed(line);
        Names names;
        if (code.startsWith(kDim))
            names.append(nameAt(code, kDim.size()));
        return names;
    }
    QString shared(QStringView line) const override { return "Private " + trimmed(line).mid(kDim.size()).toString(); }
    QString withoutDeclaration(QStringView line) const override
    {
        return line.left(indentationOf(line)).toString() + asNew(trimmed(line).mid(kDim.size()));
    }

private:
    static constexpr QStringView kDim = u"Dim ";

    static Place placeOf(QStringView code)
    {
        if (code.startsWith(u"If ") && code.endsWith(u" Then"))
            return Place::Opens;
        if (code.startsWith(u"For "))
            return Place::OpensLoop;
        if (code.startsWith(u"Else"))
            return Place::Divides;
        if (code == u"End If" || code == u"Next")
            return Place::Closes;
        return Place::Within;
    }

    /// Whether a variable holds what is no object: its type is one of VBA's own or an enumeration.
    static bool holdsValue(QStringView type)
    {
        const QStringView name = type.mid(type.lastIndexOf(u'.') + 1);
        static constexpr std::array<QStringView, 5> values{u"Double", u"Long", u"Integer", u"Boolean", u"Single"};
        return name.endsWith(u"_e") || std::find(values.begin(), values.end(), name) != values.end();
    }

    /// What a variable of `declaration`, which stands behind the `Dim`, holds where it is declared. One of a module
    /// keeps the value from the run before.
    static QString asNew(QStringView declaration)
    {
        const QStringView name = nameAt(declaration, 0);
        const QStringView behind = trimmed(declaration.mid(name.size()));
        if (behind.startsWith(u'('))
            return "Erase " + name.toString();
        const QString type = behind.startsWith(u"As ") ? behind.mid(3).toString().section(' ', 0, 0) : QString();
        if (type == "String")
            return name.toString() + " = \"\"";
        if (type == "Variant" || type.isEmpty())
            return name.toString() + " = Empty";
        return holdsValue(type) ? name.toString() + " = 0" : "Set " + name.toString() + " = Nothing";
    }
};

/// A page's functions stand within its main one. What stands in brackets of any kind is never divided: only loops and
/// tests have blocks, and nothing that is long stands in those. An `else` does so too.
class ScriptFunctions : public ProcedureLanguage
{
public:
    /// A variable takes 8 bytes of the 984 KB that browsers have for calls, and letters take none.
    Limits limits() const override { return {3000, std::numeric_limits<qsizetype>::max()}; }
    bool isNested() const override { return true; }
    std::string_view keyword() const override { return "var "; }

    bool goesOn(QStringView line) override
    {
        forCode(line, Target::JavaScript,
                [this](QChar character) { depth_ = std::max(depth_ + bracketStep(character), 0); });
        const QStringView code = trimmed(line);
        if (!code.isEmpty())
            isWhole_ = code.endsWith(u';') || code.endsWith(u'}');
        return depth_ > 0 || !isWhole_;
    }
    Shape shapeOf(QStringView) const override { return {}; }

    QString call(int procedure) const override { return nameOf(procedure) + ";"; }
    QString opening(int procedure) const override { return kOuter + "function " + nameOf(procedure) + " {"; }
    QString closing() const override { return kOuter + "}"; }
    QString indentation() const override { return kOuter + "    "; }

    Names declaredIn(QStringView line) const override
    {
        Names names;
        forScriptVariables(line, [&names](QStringView name) { names.append(name); });
        return names;
    }
    QString shared(QStringView line) const override
    {
        QStringList names;
        forScriptVariables(line, [&names](QStringView name) { names.append(name.toString()); });
        return kOuter + "var " + names.join(", ") + ";";
    }
    /// A declaration without a value does nothing.
    QString withoutDeclaration(QStringView line) const override
    {
        const QStringView code = trimmed(line);
        if (code.startsWith(u"var ") && code.endsWith(u';') && !code.contains(u'='))
            return {};
        const auto name = static_cast<int>(declaredIn(line).front().data() - line.data());
        const auto length = static_cast<int>(keyword().size());
        return line.toString().remove(name - length, length);
    }

private:
    static QString nameOf(int procedure) { return QString("recordedActions%1()").arg(procedure); }

    const QString kOuter = QString(12, ' ');
    int depth_ = 0;       ///< brackets of the statement that are open
    bool isWhole_ = true; ///< as far as its last letter tells
};

} // namespace

QStringView mainLine(Target target)
{
    switch (target) {
    case Target::Vba:
        return u"Sub main()";
    case Target::JavaScript:
        return u"       function runMacro() {";
    default:
        return {};
    }
}

std::unique_ptr<ProcedureLanguage> ProcedureLanguage::of(Target target)
{
    if (target == Target::JavaScript)
        return std::make_unique<ScriptFunctions>();
    return std::make_unique<VbaProcedures>();
}

} // namespace inkmacro
