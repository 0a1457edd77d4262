#include "spotlight/FuzzyMatcher.h"

#include <QTest>

using namespace Orvo::UI::UIComponents;

class tst_FuzzyMatcher : public QObject
{
    Q_OBJECT

private slots:
    void shouldForgiveWhatFastTypingGetsWrong_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("matches");
        QTest::newRow("exact") << "new member"
                               << "New member" << true;
        QTest::newRow("word order") << "member new"
                                    << "New member" << true;
        QTest::newRow("words cut short") << "new mem"
                                         << "New member" << true;
        QTest::newRow("swapped letters") << "memebr"
                                         << "New member" << true;
        QTest::newRow("letter missing") << "suport"
                                        << "New support" << true;
        QTest::newRow("letter doubled") << "suppport"
                                        << "New support" << true;
        QTest::newRow("wrong letter") << "combinatoins"
                                      << "Load combinations" << true;
        QTest::newRow("typo while still typing") << "combim"
                                                 << "Load combinations" << true;
        QTest::newRow("accents and case") << "ELANCE"
                                          << "Poteau élancé" << true;
        QTest::newRow("two typos in a long word") << "combnatoins"
                                                  << "Load combinations" << true;
        QTest::newRow("too many typos") << "cmbnatoinz"
                                        << "Load combinations" << false;
        QTest::newRow("two letters are not guessed") << "nw"
                                                     << "New member" << false;
        QTest::newRow("four letters forgive one") << "hnge"
                                                  << "New hinge" << true;
        QTest::newRow("three letters need to be right") << "mve"
                                                        << "Move" << false;
        QTest::newRow("every word must be found") << "new girder"
                                                  << "New member" << false;
        QTest::newRow("numbers are exact") << "member 12"
                                           << "Member 13" << false;
        QTest::newRow("numbers stand alone") << "m12"
                                             << "Member 12" << true;
        QTest::newRow("a number's start is not the number") << "member 1"
                                                            << "Member 12" << false;
        QTest::newRow("shortcut words") << "ctrl shift m"
                                        << "Ctrl+Shift+M" << true;
        QTest::newRow("nothing typed") << "  "
                                       << "New member" << false;
        QTest::newRow("inside a word") << "bination"
                                       << "Load combinations" << true;
    }

    void shouldForgiveWhatFastTypingGetsWrong()
    {
        QFETCH(QString, search);
        QFETCH(QString, text);
        QFETCH(bool, matches);
        QCOMPARE(FuzzyMatcher(search).Score(text) > 0, matches);
    }

    void shouldRankCloserMatchesHigher_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("better");
        QTest::addColumn<QString>("worse");
        QTest::newRow("whole word over beginning") << "load"
                                                   << "Load"
                                                   << "Loading";
        QTest::newRow("beginning over typo") << "memb"
                                             << "Member"
                                             << "Mamber";
        QTest::newRow("one typo over two") << "combinatoin"
                                           << "Load combination"
                                           << "Xcombinatoinx";
        QTest::newRow("typo over inside") << "binatoin"
                                          << "Bination"
                                          << "Combinatoins";
        QTest::newRow("search order kept") << "load case"
                                           << "Load case"
                                           << "Case load";
        QTest::newRow("short text over one that mentions it") << "support"
                                                              << "New support"
                                                              << "Support reactions of the frame";
        QTest::newRow("fewer typos") << "combinatoins"
                                     << "Combinations"
                                     << "Conbinatoinz";
    }

    void shouldRankCloserMatchesHigher()
    {
        QFETCH(QString, search);
        QFETCH(QString, better);
        QFETCH(QString, worse);
        const FuzzyMatcher matcher(search);
        QVERIFY(matcher.Score(worse) > 0);
        QVERIFY2(matcher.Score(better) > matcher.Score(worse),
                 qPrintable(QStringLiteral("%1 vs %2").arg(matcher.Score(better)).arg(matcher.Score(worse))));
    }

    void editDistance_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<int>("distance");
        QTest::newRow("same") << "member"
                              << "member" << 0;
        QTest::newRow("swap") << "memebr"
                              << "member" << 1;
        QTest::newRow("insert") << "membber"
                                << "member" << 1;
        QTest::newRow("delete") << "membr"
                                << "member" << 1;
        QTest::newRow("replace") << "mamber"
                                 << "member" << 1;
        QTest::newRow("empty") << ""
                               << "abc" << 3;
        QTest::newRow("two") << "mebmre"
                             << "member" << 2;
    }

    void editDistance()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(int, distance);
        QCOMPARE(FuzzyMatcher::EditDistance(a, b), distance);
        QCOMPARE(FuzzyMatcher::EditDistance(b, a), distance);
    }
};

QTEST_MAIN(tst_FuzzyMatcher)
#include "tst_fuzzymatcher.moc"
