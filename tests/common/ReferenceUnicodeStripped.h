#pragma once

#include <QHash>
#include <QString>

// UnicodeStripped worked out the obvious, slow way: NFKD, marks and control characters dropped,
// then the replacement table applied character by character into a new string. The tests check
// the real one against it; the benchmarks measure the real one against it.
inline QString ReferenceUnicodeStripped(const QString& text)
{
    static const QHash<QChar, QString> replacements {
        { QChar(0x2013), "-" },  { QChar(0x2014), "-" },  { QChar(0x2015), "-" },  { QChar(0x2018), "'" },
        { QChar(0x2019), "'" },  { QChar(0x201B), "'" },  { QChar(0x201C), "\"" }, { QChar(0x201D), "\"" },
        { QChar(0x201E), "\"" }, { QChar(0x00AB), "\"" }, { QChar(0x00BB), "\"" }, { QChar(0x2044), "/" },
        { QChar(0x00D8), "o" },  { QChar(0x00F8), "o" },  { QChar(0x0141), "L" },  { QChar(0x0142), "l" },
        { QChar(0x1E9E), "SS" }, { QChar(0x00DF), "ss" }, { QChar(0x0131), "i" },  { QChar(0x00E6), "ae" },
        { QChar(0x00C6), "AE" },
    };
    QString result;
    for (QChar c : text.normalized(QString::NormalizationForm_KD)) {
        switch (c.category()) {
        case QChar::Mark_NonSpacing:
        case QChar::Mark_SpacingCombining:
        case QChar::Mark_Enclosing:
        case QChar::Other_Control:
            continue;
        default:
            break;
        }
        const auto replacement = replacements.constFind(c);
        if (replacement != replacements.cend())
            result += *replacement;
        else
            result += c;
    }
    return result;
}
