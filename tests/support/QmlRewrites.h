#pragma once

#include <QRegularExpression>

#include <functional>

/// Ways to write the code of a QML file differently. It does the same as before.
namespace Tests::QmlRewrites
{

/// Replaces what the expression finds outside of comments, imports and other texts. Neither ListElement nor inline
/// components are touched: the former has constants only, the latter no outer ids.
inline QString replaced(const QString& code, const QString& expression,
                        const std::function<QString(const QString&)>& change)
{
    const QString kept = "//[^\\n]*|^\\.?(?:import|pragma|export)\\b[^\\n]*|`[^`\\n]*`|ListElement \\{[^}]*\\}|"
                         "component \\w+: [\\w.]+ \\{(?:[^\\n]*\\}|.*?\\n    \\})";
    const QRegularExpression tokens(kept + "|(" + expression + ")|\"[^\"\\n]*\"",
                                    QRegularExpression::MultilineOption
                                        | QRegularExpression::DotMatchesEverythingOption);
    QString result;
    int end = 0;
    for (auto found = tokens.globalMatch(code); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        result += code.mid(end, match.capturedStart() - end);
        result += match.capturedStart(1) < 0 ? match.captured() : change(match.captured());
        end = match.capturedEnd();
    }
    return result + code.mid(end);
}

inline const QString literal = "\"[^\"\\n]+\"";

/// Each text becomes `use` and the root gets `definition`, both with a number for %1. %2 is the text.
inline QString heldByRoot(const QString& code, const QString& use, const QString& definition)
{
    static int number = 0; // a property hides those of the same name in the type of its object
    const QRegularExpression root("^[A-Z][\\w.]* \\{", QRegularExpression::MultilineOption);
    const QRegularExpressionMatch id =
        QRegularExpression("^    id: (\\w+)", QRegularExpression::MultilineOption).match(code);
    QString added = id.hasMatch() ? "" : " id: rewritten;";
    const int first = number;
    QString result = replaced(code, literal, [&](const QString& text) {
        added += ' ' + definition.arg(++number).arg(text) + ' ';
        return (id.hasMatch() ? id.captured(1) : "rewritten") + '.' + use.arg(number);
    });
    return number == first ? code : result.insert(root.match(result).capturedEnd(), added);
}

/// `path: expression` becomes `path: { const NAME = TEXT; return expression }`.
inline QString inConstant(const QString& code)
{
    static const QRegularExpression binding(
        "^ *(?:[A-Z][\\w.]* \\{ )?(?:readonly )?(?:property \\w+ )?(?!default\\b)[\\w.]+: ([^{};\\n]*?[\"\\])])"
        "(?: \\})?(?: //[^\\n]*)?$(?!\\n *(?:[-+?:.]|\\}\\)))",
        QRegularExpression::MultilineOption);
    QString result = code;
    int shift = 0;
    for (auto found = binding.globalMatch(code); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString old = match.captured(1);
        QString constants;
        const QString changed = replaced(old, literal, [&](const QString& text) {
            QString name = "rewritten" + QString::number(constants.size());
            constants += "const " + name + " = " + text + "; ";
            return name;
        });
        const bool isWhole = old.count('(') == old.count(')') && old.count('[') == old.count(']') && changed != old;
        const QString block = isWhole ? "{ " + constants + "return " + changed + " }" : old;
        result.replace(match.capturedStart(1) + shift, old.size(), block);
        shift += block.size() - old.size();
    }
    return result;
}

inline QString splitTexts(const QString& code)
{
    return replaced(code, literal, [](const QString& text) {
        return '(' + QString(text).insert(1 + text.size() / 2 - (text.size() > 3 ? 0 : 1), "\" + \"") + ')';
    });
}

inline QString reformatted(const QString& code)
{
    return replaced(code, "[,([{]", [](const QString& sign) { return sign + " /* \"one\", { */\n\n  "; });
}

inline QString withQualifier(const QString& code)
{
    const QString qualified = replaced(code, "(?<![.\\w])Ui\\b", [](const QString&) { return "Rewritten.Ui"; });
    const QString import = "import Tarnis 1.0";
    return code.contains(import + '\n') ? QString(qualified).replace(import + '\n', import + " as Rewritten\n") : code;
}

} // namespace Tests::QmlRewrites
