#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <QtTest>

// Every text identifier that code or QML names literally must have a real English text, or the
// user sees the bare identifier.
class tst_StringCatalogue : public QObject
{
    Q_OBJECT

    static QString SourceDirectory() { return QStringLiteral(QTC_SOURCE_DIR); }

    static QHash<QString, QString> ReadCatalogue()
    {
        QHash<QString, QString> texts;
        QFile file(SourceDirectory() + QStringLiteral("/translations/QtComponentsStrings_en.ts"));
        if (!file.open(QIODevice::ReadOnly))
            return texts;
        QXmlStreamReader xml(&file);
        QString id;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QLatin1String("message"))
                id = xml.attributes().value(QLatin1String("id")).toString();
            else if (xml.name() == QLatin1String("translation"))
                texts.insert(id, xml.readElementText());
        }
        return texts;
    }

    static QMap<QString, QString> IdentifiersUsedInSources()
    {
        static const QRegularExpression literal(QStringLiteral("[\"'](UI_[A-Z0-9_]+)[\"']"));
        QMap<QString, QString> used; // identifier -> first file using it
        for (const char* folder : { "src", "host", "qml", "app" }) {
            QDirIterator it(SourceDirectory() + QLatin1Char('/') + QLatin1String(folder),
                            { "*.cpp", "*.h", "*.qml", "*.js", "*.xml" }, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                QFile file(it.next());
                if (!file.open(QIODevice::ReadOnly))
                    continue;
                const QString text = QString::fromUtf8(file.readAll());
                for (const auto& match : literal.globalMatch(text)) {
                    if (!used.contains(match.captured(1)))
                        used.insert(match.captured(1), file.fileName());
                }
            }
        }
        return used;
    }

private slots:
    void shouldHaveAnEnglishTextForEveryIdentifierInUse()
    {
        const auto catalogue = ReadCatalogue();
        QVERIFY(!catalogue.isEmpty());
        const auto used = IdentifiersUsedInSources();
        QStringList missing;
        for (auto it = used.begin(); it != used.end(); ++it) {
            if (catalogue.value(it.key()).trimmed().isEmpty())
                missing << QStringLiteral("%1 (%2)").arg(it.key(), it.value());
        }
        QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("No English text for: ") + missing.join(QLatin1String(", "))));
    }
};

QTEST_GUILESS_MAIN(tst_StringCatalogue)
#include "tst_stringcatalogue.moc"
