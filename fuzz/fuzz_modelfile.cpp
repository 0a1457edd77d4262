// The model file reader. A file it accepts holds a structure that keeps its rules, and writing
// that structure and reading it again gives the same file; a file it refuses leaves the model
// it was read into as it was.
#include "FuzzSupport.h"
#include "model/ModelFile.h"
#include "model/ModelGenerator.h"

using namespace Orvo::Kernel::Model;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Fuzz::EnsureApplication(false);
    const QByteArray file(reinterpret_cast<const char*>(bytes), qsizetype(size));
    Structure structure;
    ModelGenerator::PortalFrame(structure, { 1, 6.0, 4.0 });
    const QByteArray before = ModelFile::ToJson(structure);
    if (ModelFile::FromJson(file, structure)) {
        FUZZ_CHECK(ModelFile::ToJson(structure) == before);
        return 0;
    }
    const QByteArray written = ModelFile::ToJson(structure);
    Structure reread;
    FUZZ_CHECK(!ModelFile::FromJson(written, reread));
    FUZZ_CHECK(ModelFile::ToJson(reread) == written);
    return 0;
}
