#include "host/kernel/CFxKeywordArray.h"

#include <algorithm>

namespace {

QString capitalLetters(const QString& word)
{
    QString letters;
    std::copy_if(word.begin(), word.end(), std::back_inserter(letters), [](QChar c) { return c.isUpper(); });
    return letters;
}

bool same(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

} // namespace

QStringList CFxKeywordArray::Keyword::answers() const
{
    QStringList answers = global.split(',');
    answers.prepend(local.section(',', -1));
    return answers;
}

CFxString CFxKeywordArray::BuildPrompt(const CFxString& text) const
{
    QStringList words;
    for (const Keyword& keyword : keywords_)
        words.append(keyword.shown());
    return text.toQString() + " [" + words.join('/') + ']';
}

CFxString CFxKeywordArray::GetShown(const CFxString& global) const
{
    for (const Keyword& keyword : keywords_)
        if (same(keyword.id(), global))
            return keyword.shown();
    return {};
}

std::vector<CFxString> CFxKeywordArray::GetAnswers() const
{
    std::vector<CFxString> answers;
    for (const Keyword& keyword : keywords_)
        for (const QString& answer : keyword.answers())
            answers.emplace_back(answer);
    return answers;
}

std::vector<CFxString> CFxKeywordArray::Find(const CFxString& answer) const
{
    const QString& text = answer;
    if (text.isEmpty())
        return {};
    const auto fitting = [&](auto fits) {
        std::vector<CFxString> found;
        for (const Keyword& keyword : keywords_)
            if (const QStringList words = keyword.answers(); std::any_of(words.begin(), words.end(), fits))
                found.emplace_back(keyword.id());
        return found;
    };
    auto found = fitting([&](const QString& word) { return same(word, text); });
    if (found.empty())
        found = fitting([&](const QString& word) { return same(capitalLetters(word), text); });
    if (found.empty())
        found = fitting([&](const QString& word) { return word.startsWith(text, Qt::CaseInsensitive); });
    return found;
}
