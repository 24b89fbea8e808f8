// Every writer of the program's files with each of its file operations failing, alone and with
// every operation after it: the failure is reported naming the file, the old file stays byte
// for byte and no temporary file is left beside it.
#include <gtest/gtest.h>

#include "FailingFileOps.h"
#include "SampleWriters.h"
#include "TempFolder.h"
#include "base/FileWriter.h"
#include "base/Result.h"

namespace {

TEST(WriterFaults, AnyFailingOperationLeavesTheOldFile) {
    CSampleFiles sample;
    const std::string old = "the old file\r\n";
    for (const CSampleWriter& writer : AllWriters()) {
        SCOPED_TRACE(writer.name);
        CTempFolder folder;
        const std::string path = folder / "file.out";
        auto write = [&] { return writer.write(sample, path); };
        WriteBytes(path, old);
        CFailingOps dry;
        ASSERT_EQ(WithOps(dry, write), RESULT_DONE);
        ASSERT_NE(ReadBytes(path), old);
        EXPECT_EQ(Sequence(dry.m_ops), kReplaceOps);
        RecordProperty(writer.name, static_cast<int>(dry.m_ops.size()));
        for (const CFault& fault : FaultsOf(dry.m_ops.size())) {
            SCOPED_TRACE(fault.Name(dry.m_ops));
            WriteBytes(path, old);
            CFailingOps ops(fault);
            const CWriteResult result = WithOps(ops, write);
            EXPECT_EQ(result, RESULT_CANNOT_WRITE);
            EXPECT_EQ(result.error.rfind(path + ": ", 0), 0u) << result.error;
            EXPECT_EQ(ReadBytes(path), old);
            EXPECT_EQ(folder.Names(), std::vector<std::string>{"file.out"});
        }
    }
}

}  // namespace
