#include "ModelDocument.h"

#include "commands/RecentFiles.h"
#include "events/CommandExecuted.h"
#include "framework/DefaultServices.h"
#include "framework/EventBus.h"
#include "framework/IStringLoader.h"
#include "model/ModelFile.h"
#include "properties/StructuralModel.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QUndoStack>

namespace Orvo::Kernel::Framework {

using Model::ModelFile;
using Model::ModelFileError;

struct ModelDocument::State
{
    QString filePath;
};

namespace {

QString CleanPath(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

ModelDocument::ModelDocument(std::shared_ptr<StructuralModel> model, std::shared_ptr<EventBus> eventbus,
                             std::shared_ptr<RecentFiles> recentFiles,
                             std::shared_ptr<const IStringLoader> strings)
    : m_model(std::move(model))
    , m_eventbus(eventbus)
    , m_recentFiles(std::move(recentFiles))
    , m_strings(std::move(strings))
    , m_state(std::make_shared<State>())
{
    if (eventbus)
        m_commandConnection = eventbus->Subscribe<UI::Events::CommandExecuted>(
            [this](const UI::Events::CommandExecuted& event) {
                OnCommand(event.GetCommandUuid(), event.GetParameterString());
            });
}

ModelDocument::~ModelDocument() = default;

QString ModelDocument::FilePath() const
{
    return m_state->filePath;
}

bool ModelDocument::IsModified() const
{
    const QUndoStack* undoStack = m_model ? m_model->UndoStack() : nullptr;
    return undoStack && !undoStack->isClean();
}

QString ModelDocument::SuggestedPath() const
{
    if (!m_state->filePath.isEmpty())
        return m_state->filePath;
    QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    // Not every account has its documents folder; a file is not written where no folder is.
    if (documents.isEmpty() || !QDir(documents).exists())
        documents = QDir::homePath();
    const QString name = m_strings ? QString::fromStdWString(m_strings->Load(
                             { L"UI_MODEL_FILE_DEFAULT_NAME", DefaultServices::c_componentsStringTable }))
                                   : QStringLiteral("Model");
    return QDir(documents).filePath(name + QLatin1Char('.') + ModelFile::c_extension);
}

bool ModelDocument::CanOpen(const QString& path)
{
    return ModelFile::IsModelFileName(path);
}

bool ModelDocument::Open(const QString& path)
{
    if (!m_model)
        return false;
    const QString cleanPath = CleanPath(path);
    Model::Structure structure;
    if (const ModelFileError error = ModelFile::Load(cleanPath, structure)) {
        Fail(ModelFileOperation::Open, cleanPath, error.ToText(m_strings.get()));
        // A file that cannot be opened is no use in the recent files.
        if (m_recentFiles)
            m_recentFiles->Remove(cleanPath);
        return false;
    }
    const QString stepName = m_strings
        ? QString::fromStdWString(
              m_strings->Load({ L"UI_MODEL_FILE_OPEN_STEP", DefaultServices::c_componentsStringTable }))
              .arg(QFileInfo(cleanPath).fileName())
        : cleanPath;
    // The step exchanges the file name with the structure, both ways: undoing the open gives
    // back the previous model and the file it belongs to, so that Save never writes it over
    // the opened file.
    std::weak_ptr<State> state = m_state;
    auto otherPath = std::make_shared<QString>(cleanPath);
    m_model->ReplaceAsStep(std::move(structure), stepName, [state, otherPath]() {
        if (auto alive = state.lock())
            std::swap(alive->filePath, *otherPath);
    });
    MarkClean();
    if (m_recentFiles)
        m_recentFiles->Add(cleanPath);
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(ModelFileOpenedEvent { cleanPath });
    return true;
}

bool ModelDocument::SaveAs(const QString& path)
{
    if (!m_model)
        return false;
    QString cleanPath = CleanPath(path);
    // A name typed without the extension gets it, so that Open finds the file again.
    if (!ModelFile::IsModelFileName(cleanPath))
        cleanPath += QLatin1Char('.') + ModelFile::c_extension;
    if (const ModelFileError error = ModelFile::Save(m_model->Structure(), cleanPath)) {
        Fail(ModelFileOperation::Save, cleanPath, error.ToText(m_strings.get()));
        // The command that named the file put it in the recent files; one never written is none.
        if (m_recentFiles && !QFileInfo::exists(cleanPath))
            m_recentFiles->Remove(cleanPath);
        return false;
    }
    m_state->filePath = cleanPath;
    MarkClean();
    if (m_recentFiles)
        m_recentFiles->Add(cleanPath);
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(ModelFileSavedEvent { cleanPath });
    return true;
}

bool ModelDocument::Save()
{
    return !m_state->filePath.isEmpty() && SaveAs(m_state->filePath);
}

void ModelDocument::OnCommand(const std::wstring& uuid, const std::wstring& parameters)
{
    const bool open = uuid == c_openCommand;
    const bool save = uuid == c_saveCommand;
    const bool saveAs = uuid == c_saveAsCommand;
    if (!open && !save && !saveAs)
        return;
    const QString file = RecentFiles::FileOfParameters(parameters);
    if (!file.isEmpty()) {
        if (open)
            Open(file);
        else
            SaveAs(file);
        return;
    }
    if (save && Save())
        return;
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(ModelFileNameNeededEvent { open ? ModelFileOperation::Open : ModelFileOperation::Save,
                                                  SuggestedPath() });
}

void ModelDocument::Fail(ModelFileOperation operation, const QString& path, const QString& message)
{
    if (auto eventbus = m_eventbus.lock())
        eventbus->Post(ModelFileFailedEvent { operation, path, message });
}

void ModelDocument::MarkClean()
{
    if (QUndoStack* undoStack = m_model->UndoStack())
        undoStack->setClean();
}

} // namespace Orvo::Kernel::Framework
