#pragma once

#include "HostKitExport.h"
#include "ModelDocumentEvents.h"
#include "framework/EventConnection.h"

#include <QString>
#include <memory>

namespace Orvo::Kernel::Framework {

class EventBus;
class IStringLoader;
class RecentFiles;
class StructuralModel;

// The file the structural model belongs to, and the application's file commands over it: Open,
// Save and Save as. A command names its file in its parameters ("file=<path>", as the recent
// files and a dropped file do); without one it asks the shell for a name
// (ModelFileNameNeededEvent). Every outcome is announced on the event bus.
//
// Opening is one step of the undo stack, so that a model with unsaved changes is never lost
// by opening another: undo brings it back, together with the file it belonged to.
class HOSTKIT_EXPORT ModelDocument
{
public:
    static constexpr const wchar_t* c_openCommand = L"0b6f6f2e-3c8d-4f1a-9a57-6c2e41d7b5a3";
    static constexpr const wchar_t* c_saveCommand = L"5d85bcf0-15b0-44be-9bad-202d1b15dcbc";
    static constexpr const wchar_t* c_saveAsCommand = L"8a1c2f7e-64d3-4b0a-b5e9-3f2d7c91a4e6";

    ModelDocument(std::shared_ptr<StructuralModel> model, std::shared_ptr<EventBus> eventbus,
                  std::shared_ptr<RecentFiles> recentFiles = nullptr,
                  std::shared_ptr<const IStringLoader> strings = nullptr);
    ~ModelDocument();
    ModelDocument(const ModelDocument&) = delete;
    ModelDocument& operator=(const ModelDocument&) = delete;

    // The model's file; empty until the model was saved or opened.
    QString FilePath() const;
    // Whether the model changed since it was opened or saved.
    bool IsModified() const;
    // Where Save as offers to write: the model's file, or a new one in the user's documents.
    QString SuggestedPath() const;

    // Each returns false, changes nothing and posts ModelFileFailedEvent when the file cannot
    // be read or written.
    bool Open(const QString& path);
    bool SaveAs(const QString& path);
    // Writes to the model's file; false when it has none yet.
    bool Save();

    // Whether the file is one Open reads (by its name: what is in it is checked on opening).
    static bool CanOpen(const QString& path);

private:
    struct State;

    void OnCommand(const std::wstring& uuid, const std::wstring& parameters);
    void Fail(ModelFileOperation operation, const QString& path, const QString& message);
    void MarkClean();

    std::shared_ptr<StructuralModel> m_model;
    std::weak_ptr<EventBus> m_eventbus;
    std::shared_ptr<RecentFiles> m_recentFiles;
    std::shared_ptr<const IStringLoader> m_strings;
    // Shared with the undo steps of opened files, which may outlive the document.
    std::shared_ptr<State> m_state;
    EventConnection m_commandConnection;
};

} // namespace Orvo::Kernel::Framework
