// The workspace reader against inputs the editor never writes: each row gives the fields the
// reader must leave in a fresh workspace.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "HostileInputs.h"
#include "TempFolder.h"
#include "WorkspaceFields.h"
#include "base/Result.h"
#include "model/Workspace.h"

namespace {

using namespace hostile;

const std::string kSmall =
    "Spring|\r\nspring.oob|\r\nspring.bak|\r\ntarget.inf|\r\n"
    "1|units.bmp|\r\n0|empty|\r\n1|icons1.bmp|\r\n0|empty|\r\n1|icons3.bmp|\r\n";
const std::string kSmallFields =
    "Spring|spring.oob|spring.bak|target.inf|1:units.bmp|0:empty|1:icons1.bmp|0:empty|"
    "1:icons3.bmp|";
const std::string kFreshFields = "||||0:empty|0:empty|0:empty|0:empty|0:empty|";

std::string Read(const std::string& text) {
    CWorkspace w;
    std::istringstream in(text);
    w.ReadFrom(in);
    return Fields(w);
}

// The small file with its first picture line replaced.
std::string Picture(const std::string& line) {
    return ReplaceFirst(kSmall, "1|units.bmp|", line);
}

struct Row {
    const char* what;
    std::string input;
    std::string fields;
};

TEST(HostileWorkspace, EveryRowReadsAsDecided) {
    const std::string noLine = Noise(4096, "\n\r\t|");
    const std::string word = Noise(20, "\n\r\t|0123456789.-");
    const std::string x(kMiB, 'x');
    const std::string tail = kSmallFields.substr(kSmallFields.find("|") + 1);
    const Row rows[] = {
        {"the small file", kSmall, kSmallFields},
        {"empty", "", kFreshFields},
        {"one line break", "\r\n", kFreshFields},
        // Noise with no line break is the title line, cut at 254 bytes.
        {"noise, one line", noLine, noLine.substr(0, 254) + kFreshFields},
        // Noise words without a digit: a picture flag of 0 and no path.
        {"noise lines", Repeat(word + "|\n", 9),
         word + "|" + word + "|" + word + "|" + word + "|0:|0:|0:|0:|0:|"},
        {"1 MiB title", ReplaceFirst(kSmall, "Spring", x), x.substr(0, 254) + "|" + tail},
        {"1 MiB picture path", Picture("1|" + x),
         ReplaceFirst(kSmallFields, "units.bmp", x.substr(0, 252))},
        {"1 MiB of bars", std::string(kMiB, '|') + "\n", kFreshFields},
        {"1 MiB of line feeds", std::string(kMiB, '\n'), "||||0:|0:|0:|0:|0:|"},
        // Only LF ends a line: with CR alone the file is one line, the title.
        {"CR only", Replace(kSmall, "\r\n", "\r"), "Spring" + kFreshFields},
        {"LF only", Replace(kSmall, "\r\n", "\n"), kSmallFields},
        {"mixed LF and CR LF", MixedLineEnds(kSmall), kSmallFields},
        // A second CR is a field after the last bar, which no reader takes.
        {"CR CR LF", Replace(kSmall, "\r\n", "\r\r\n"), kSmallFields},
        {"CR inside the title", ReplaceFirst(kSmall, "Spring", "Spr\ring"),
         ReplaceFirst(kSmallFields, "Spring", "Spr\ring")},
        {"NUL in the title", ReplaceFirst(kSmall, "Spring", std::string("Spr\0ing", 7)),
         std::string("Spr\0ing|", 8) + tail},
        {"NUL bytes only", std::string(1000, '\0') + "\n", std::string(254, '\0') + kFreshFields},
        {"undefined bytes in a path", Picture("1|" + kUndefined1252 + "|"),
         ReplaceFirst(kSmallFields, "units.bmp", kUndefined1252)},
        {"undefined bytes in the title", ReplaceFirst(kSmall, "Spring", kUndefined1252),
         kUndefined1252 + "|" + tail},
        // Flags: truncated toward zero into 8 bits; no exponent is read, and letters and a
        // second full stop are passed over.
        {"20-digit flag", Picture("99999999999999999999|units.bmp|"),
         ReplaceFirst(kSmallFields, "1:units", "0:units")},
        {"flag -2147483649", Picture("-2147483649|units.bmp|"),
         ReplaceFirst(kSmallFields, "1:units", "255:units")},
        {"flag 1e999", Picture("1e999|units.bmp|"),
         ReplaceFirst(kSmallFields, "1:units", "207:units")},
        {"flag -0", Picture("-0|units.bmp|"), ReplaceFirst(kSmallFields, "1:units", "0:units")},
        {"flag 0x10", Picture("0x10|units.bmp|"),
         ReplaceFirst(kSmallFields, "1:units", "10:units")},
        {"flag -1", Picture("-1|units.bmp|"), ReplaceFirst(kSmallFields, "1:units", "255:units")},
        {"flag 1.9.9", Picture("1.9.9|units.bmp|"), kSmallFields},
        {"10^5 fields on the title line",
         ReplaceFirst(kSmall, "Spring|", Repeat("Spring|", 100000)), kSmallFields},
        {"10^5 fields on a picture line", Picture(Repeat("1|", 100000)),
         ReplaceFirst(kSmallFields, "1:units.bmp", "1:1")},
        {"10^5 Begin lines", Repeat("Begin\r\n", 100000),
         "Begin|Begin|Begin|Begin|0:|0:|0:|0:|0:|"},
        {"more End than Begin lines", "Begin\r\n" + Repeat("End\r\n", 50),
         "Begin|End|End|End|0:|0:|0:|0:|0:|"},
        // A file cut short keeps the fresh workspace's fields for its missing lines.
        {"four lines", kSmall.substr(0, kSmall.find("1|units")),
         "Spring|spring.oob|spring.bak|target.inf|0:empty|0:empty|0:empty|0:empty|0:empty|"},
        {"lines beyond the ninth", kSmall + "1|more.bmp|\r\n" + noLine, kSmallFields},
        {"fields without bars", Replace(kSmall, "|\r\n", "\r\n"), kSmallFields},
        {"title after a tab", ReplaceFirst(kSmall, "Spring", "\t\tSpring"), kSmallFields},
        {"tab inside a path", Picture("1|units\tx.bmp|"),
         ReplaceFirst(kSmallFields, "units.bmp", "units")},
        {"path before the flag", Picture("|units.bmp|"),
         ReplaceFirst(kSmallFields, "1:units.bmp", "0:")},
        {"bar alone as a path line", Picture("|"), ReplaceFirst(kSmallFields, "1:units.bmp", "0:")},
        {"empty oob line", ReplaceFirst(kSmall, "spring.oob|", ""),
         ReplaceFirst(kSmallFields, "spring.oob", "")},
        {"blanks kept inside a field", ReplaceFirst(kSmall, "Spring", "  Spring  war "),
         ReplaceFirst(kSmallFields, "Spring", "  Spring  war ")},
        {"backslashes and a drive", ReplaceFirst(kSmall, "spring.oob", "C:\\war\\spring.oob"),
         ReplaceFirst(kSmallFields, "spring.oob", "C:\\war\\spring.oob")},
        {"255-character title", ReplaceFirst(kSmall, "Spring", std::string(255, 't')),
         std::string(254, 't') + "|" + tail},
        {"noise after the small file", kSmall + Noise(64 * 1024), kSmallFields},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(Read(row.input), row.fields);
    }
}

// The small file cut after every byte. A cut after k line breaks gives the small file's first k
// fields and the fresh ones after them; a cut inside a line reads that line as the file's last,
// as if its line feed followed.
TEST(HostileWorkspace, FileCutAtEveryByte) {
    for (std::size_t n = 0; n <= kSmall.size(); ++n) {
        SCOPED_TRACE(n);
        const std::string cut = kSmall.substr(0, n);
        if (n == 0 || kSmall[n - 1] == '\n') {
            std::size_t small = 0;
            std::size_t fresh = 0;
            for (int k = LinesBefore(kSmall, n); k > 0; --k) {
                small = kSmallFields.find('|', small) + 1;
                fresh = kFreshFields.find('|', fresh) + 1;
            }
            EXPECT_EQ(Read(cut), kSmallFields.substr(0, small) + kFreshFields.substr(fresh));
        } else {
            EXPECT_EQ(Read(cut), Read(cut + "\n"));
        }
    }
}

// A path that names no file, or a folder, is refused and the workspace keeps its fields.
TEST(HostileWorkspace, PathsThatAreNoFileAreRefused) {
    CTempFolder folder;
    CWorkspace w;
    std::istringstream in(kSmall);
    w.ReadFrom(in);
    EXPECT_EQ(w.Load(folder / "missing.txt"), RESULT_CANNOT_OPEN);
    EXPECT_EQ(w.Load(folder.Path()), RESULT_CANNOT_OPEN);
    EXPECT_EQ(Fields(w), kSmallFields);
}

}  // namespace
