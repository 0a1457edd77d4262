#include <QCborMap>
#include <QCborValue>
#include <QFile>
#include <QJsonObject>
#include <QPluginLoader>
#include <QQmlExtensionInterface>
#include <QtTest>

#include <cstring>
#include <elf.h>
#include <optional>

// The QML engine decides whether to load the plugin from metadata it reads out of the file,
// so the metadata must be right without running a line of the library.
class tst_PluginMetadata : public QObject
{
    Q_OBJECT

    struct MetadataNote
    {
        quint8 formatVersion = 0;
        quint8 qtMajor = 0;
        quint8 qtMinor = 0;
        QCborMap map;
    };

    static QString PluginFile() { return qEnvironmentVariable("QTC_PLUGIN_FILE"); }

    // Finds the plugin metadata note by walking the ELF section headers of the file.
    static std::optional<MetadataNote> ReadMetadataNote(const QByteArray& file)
    {
        if (file.size() < qsizetype(sizeof(Elf64_Ehdr))
            || std::memcmp(file.constData(), ELFMAG, SELFMAG) != 0)
            return std::nullopt;
        Elf64_Ehdr header;
        std::memcpy(&header, file.constData(), sizeof header);
        const auto sectionAt = [&](int i) {
            Elf64_Shdr section;
            std::memcpy(&section, file.constData() + header.e_shoff + i * header.e_shentsize, sizeof section);
            return section;
        };
        const Elf64_Shdr names = sectionAt(header.e_shstrndx);
        for (int i = 0; i < header.e_shnum; ++i) {
            const Elf64_Shdr section = sectionAt(i);
            const char* name = file.constData() + names.sh_offset + section.sh_name;
            if (std::strcmp(name, ".note.qt.metadata") != 0)
                continue;
            const char* note = file.constData() + section.sh_offset;
            quint32 nameSize, descriptionSize, type;
            std::memcpy(&nameSize, note, 4);
            std::memcpy(&descriptionSize, note + 4, 4);
            std::memcpy(&type, note + 8, 4);
            if (type != 0x74510001 || std::strcmp(note + 12, "qt-project!") != 0)
                return std::nullopt;
            // The payload follows the 12-byte note header and the name, aligned as a pointer.
            const char* description = note + ((12 + nameSize + 7) & ~7u);
            MetadataNote result;
            result.formatVersion = quint8(description[0]);
            result.qtMajor = quint8(description[1]);
            result.qtMinor = quint8(description[2]);
            result.map = QCborValue::fromCbor(QByteArray(description + 4, int(descriptionSize) - 4)).toMap();
            return result;
        }
        return std::nullopt;
    }

private slots:
    void shouldCarryIidClassNameAndQtVersionInTheElfNote()
    {
        QFile library(PluginFile());
        QVERIFY2(library.open(QIODevice::ReadOnly), qPrintable(PluginFile()));
        const auto note = ReadMetadataNote(library.readAll());
        QVERIFY(note.has_value());
        QCOMPARE(note->formatVersion, quint8(1));
        QCOMPARE(note->qtMajor, quint8(QT_VERSION_MAJOR));
        QCOMPARE(note->qtMinor, quint8(QT_VERSION_MINOR));
        // Exactly the interface id and the class name: no user metadata, no URI (that comes from qmldir).
        QCOMPARE(note->map.size(), 2);
        QCOMPARE(note->map.value(2).toString(),
                 QStringLiteral("org.qt-project.Qt.QQmlExtensionInterface/1.0"));
        QCOMPARE(note->map.value(3).toString(), QStringLiteral("UIComponents_Plugin"));
    }

    void shouldBeReadableByQtWithoutLoadingTheLibrary()
    {
        QPluginLoader loader(PluginFile());
        const QJsonObject metaData = loader.metaData();
        QVERIFY(!loader.isLoaded());
        QCOMPARE(metaData.value(QLatin1String("IID")).toString(),
                 QStringLiteral("org.qt-project.Qt.QQmlExtensionInterface/1.0"));
        QCOMPARE(metaData.value(QLatin1String("className")).toString(),
                 QStringLiteral("UIComponents_Plugin"));
        // Qt records the major and minor version of the build; the patch level does not matter.
        QCOMPARE(metaData.value(QLatin1String("version")).toInt(), QT_VERSION & 0xffff00);
    }

    void shouldReturnTheSamePluginInstanceUntilItIsDeleted()
    {
        QPluginLoader loader(PluginFile());
        QObject* first = loader.instance();
        QVERIFY2(first, qPrintable(loader.errorString()));
        QCOMPARE(loader.instance(), first);
        QCOMPARE(first->metaObject()->className(), "Orvo::UI::UIComponents::UIComponents_Plugin");
        QVERIFY(qobject_cast<QQmlExtensionInterface*>(first));
    }
};

QTEST_GUILESS_MAIN(tst_PluginMetadata)
#include "tst_pluginmetadata.moc"
