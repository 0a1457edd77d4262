#include "commands/ICommandRepository.h"
#include "framework/HostApplication.h"
#include "framework/ServiceCatalog.h"
#include "kernel/Directories.h"
#include "kernel/PathText.h"
#include "markingmenu/MarkingMenu.h"
#include "markingmenu/MarkingMenuConfig.h"
#include "qtextensions/ComponentConfigurationStore.h"
#include "qtextensions/File.h"

#include <QFileInfo>
#include <QUrl>
#include <QtTest>

using namespace Orvo::Kernel::Framework;
using namespace Orvo::UI::UIComponents;

// The marking menu the application ships (beside the test, as beside the demo): every section it
// shows offers six commands a user can see and recognise, none an empty or unlabelled slice.
class tst_ShippedMarkingMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        // A user who never changed the menu: the store falls back to the shipped defaults.
        using namespace Orvo::Kernel;
        Directories::SetDirectory(Directories::DirectoryType::UserConfigurationDirectory,
                                  Directories::ToPath(m_userConfiguration.path()));
        m_catalog = HostApplication::Start(Directories::ToPath(QCoreApplication::applicationDirPath()));
    }

    void everyShownSliceShouldOfferAVisibleCommandWithIconAndName()
    {
        MarkingMenu menu;
        const auto store = m_catalog->Get<Orvo::UI::QtExtensions::ComponentConfigurationStore>();
        menu.loadConfiguration(store->Load(QStringLiteral("MarkingMenu")));
        const auto repository = m_catalog->Get<ICommandRepository>();
        const MarkingMenuConfig* config = menu.mmConfig();
        const MarkingMenuSectionConfig* sections[] = { config->topSection(), config->rightSection(),
                                                       config->bottomSection(), config->leftSection() };
        int shownSections = 0;
        for (const MarkingMenuSectionConfig* section : sections) {
            if (!section->sectionVisible())
                continue;
            ++shownSections;
            QVERIFY2(!section->lcid().isEmpty(), qPrintable(section->label()));
            for (int slot = 0; slot < section->commandUuids().size(); ++slot) {
                const QString where = QStringLiteral("%1, slice %2").arg(section->label()).arg(slot + 1);
                const QString uuid = section->commandUuids().at(slot);
                QVERIFY2(!uuid.isEmpty(), qPrintable(where + " is empty"));
                const auto command = repository->FindCommand(uuid.toStdWString());
                QVERIFY2(command && command->visible, qPrintable(where + " names no visible command"));
                const QString name = menu.commandHelper()->getCommandName(uuid);
                QVERIFY2(!name.isEmpty() && name != QString::fromStdWString(command->nameId),
                         qPrintable(where + " has no name in the string table"));
                const QString icon = QUrl(menu.commandHelper()->getCommandIcon(uuid)).toLocalFile();
                QVERIFY2(QFileInfo(icon).isFile(), qPrintable(where + " has no icon file"));
            }
        }
        QCOMPARE(shownSections, 4);
    }

private:
    QTemporaryDir m_userConfiguration;
    std::shared_ptr<ServiceCatalog> m_catalog;
};

QTEST_MAIN(tst_ShippedMarkingMenu)
#include "tst_shippedmarkingmenu.moc"
