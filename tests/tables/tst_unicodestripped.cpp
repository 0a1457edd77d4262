#include "ReferenceUnicodeStripped.h"
#include "tables/UnicodeStripped.h"

#include <QRandomGenerator>
#include <QTest>

#include <iterator>

using namespace Orvo::UI::UIComponents;

class tst_UnicodeStripped : public QObject
{
    Q_OBJECT

private slots:
    void shouldFoldTextAsUsersTypeIt_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("stripped");
        // clang-format off
        QTest::newRow("empty") << "" << "";
        QTest::newRow("accents dropped, case kept") << "Ångström ÉCOLE" << "Angstrom ECOLE";
        QTest::newRow("combining mark") << "e\u0301" << "e";
        QTest::newRow("enclosing mark") << "1\u20DD" << "1";
        QTest::newRow("controls") << "a\tb\u0085c\u007F" << "abc";
        QTest::newRow("ligature and fraction") << "\uFB01 \u00BD" << "fi 1/2";
        QTest::newRow("full width") << "\uFF21\uFF11" << "A1";
        QTest::newRow("dashes") << "\u2013\u2014\u2015" << "---";
        QTest::newRow("single quotes") << "\u2018\u2019\u201B" << "'''";
        QTest::newRow("double quotes") << "\u201C\u201D\u201E\u00AB\u00BB" << "\"\"\"\"\"";
        QTest::newRow("fraction slash") << "1\u20442" << "1/2";
        QTest::newRow("both o-slashes to lower case o") << "\u00D8\u00F8" << "oo";
        QTest::newRow("stroked l") << "\u0141\u0142" << "Ll";
        QTest::newRow("sharp s") << "\u1E9E\u00DF" << "SSss";
        QTest::newRow("dotless i") << "\u0131" << "i";
        QTest::newRow("ae ligatures") << "\u00C6\u00E6" << "AEae";
        QTest::newRow("letters without folding") << "Ж中" << "Ж中";
        QTest::newRow("character outside the BMP") << "a\U0001F600" << "a\U0001F600";
        QTest::newRow("mark outside the BMP") << "a\U0001D167" << "a";
        QTest::newRow("lone surrogate kept") << QString(QChar(0xD800)) << QString(QChar(0xD800));
        // clang-format on
    }

    void shouldFoldTextAsUsersTypeIt()
    {
        QFETCH(QString, text);
        QFETCH(QString, stripped);
        QCOMPARE(UnicodeStripped(text), stripped);
    }

    void shouldReturnPlainAsciiWithoutCopying()
    {
        const QString text = QStringLiteral("Beam B-12 (x, y) ~ 4.5 kN");
        QCOMPARE(UnicodeStripped(text).constData(), text.constData());
    }

    void shouldMatchTheReferenceOverTheWholeBmp()
    {
        for (char32_t codePoint = 0; codePoint <= 0xFFFF; ++codePoint) {
            const QString alone { QChar(char16_t(codePoint)) };
            const QString inText = u'x' + alone + QStringLiteral("\u0301y");
            if (UnicodeStripped(alone) != ReferenceUnicodeStripped(alone)
                || UnicodeStripped(inText) != ReferenceUnicodeStripped(inText))
                QFAIL(qPrintable(
                    QStringLiteral("U+%1 folds differently").arg(uint(codePoint), 4, 16, QChar(u'0'))));
        }
    }

    // Long texts are decomposed piece by piece; marks in any order around the cuts, characters
    // that decompose into marks or into many letters, and surrogate pairs must fold as if the
    // text were decomposed whole.
    void shouldFoldLongTextsAsAWhole()
    {
        const QString alphabet[] = {
            QStringLiteral("a"),
            QStringLiteral("\u0301"),
            QStringLiteral("\u0323"),
            QStringLiteral("\u0315"),
            QStringLiteral("\uFDFA"),
            QStringLiteral("\u1E9B"),
            QStringLiteral("\uAC00"),
            QStringLiteral("\u0F73"),
            QStringLiteral("\u0344"),
            QStringLiteral("\u00C5"),
            QStringLiteral(" "),
            QString::fromUcs4(U"\U0001D400"),
            QString::fromUcs4(U"\U0001F600"),
        };
        QRandomGenerator random(13);
        for (int sample = 0; sample < 200; ++sample) {
            QString text;
            const int length = 100 + static_cast<int>(random.bounded(1500));
            while (text.size() < length)
                text += alphabet[random.bounded(static_cast<quint32>(std::size(alphabet)))];
            if (UnicodeStripped(text) != ReferenceUnicodeStripped(text))
                QFAIL(qPrintable(QStringLiteral("sample %1 folds differently").arg(sample)));
        }
        const QString ligatures(1300, QChar(0xFDFA));
        QCOMPARE(UnicodeStripped(ligatures), ReferenceUnicodeStripped(ligatures));
    }
};

QTEST_GUILESS_MAIN(tst_UnicodeStripped)
#include "tst_unicodestripped.moc"
