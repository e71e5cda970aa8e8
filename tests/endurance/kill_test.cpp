// Somebody types and saves, and the program is killed: no file is damaged, little typing is lost,
// and what was kept opens again.
//
//   QUENLOFT_KILLS=200 endurance_tests --gtest_filter='Kill.*'
//
// kills it so often; QUENLOFT_KILL_SEED=7 in other moments, QUENLOFT_KILL_INTERVAL=8000 with as
// many milliseconds between two looks at the windows as the program itself has.
#include <QMdiSubWindow>
#include <QProcess>
#include <QProcessEnvironment>
#include <QPushButton>
#include <algorithm>
#include <chrono>
#include <fstream>
#include <iostream>
#include <random>

#include "shell/child_window.h"
#include "shell/form_names.h"
#include "shell/recovery/readable_text.h"
#include "tests/support/left_state.h"

namespace quenloft {
namespace {

using std::chrono::milliseconds;

constexpr char kWorkFolder[] = "QUENLOFT_KILL_FOLDER";

// What a disk and a scheduler with other things to do may add to the interval.
constexpr milliseconds kSlack{1500};

milliseconds Interval() {
    const int given = qEnvironmentVariableIntValue("QUENLOFT_KILL_INTERVAL");
    return milliseconds(given > 0 ? given : 100);
}

/// Of a clock that all processes share.
milliseconds Now() {
    return std::chrono::duration_cast<milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

/// One that is saved now and then, and one that never is.
constexpr const char* kFiles[] = {"a.spt", ""};
constexpr int kDocuments = std::size(kFiles);

/// The text of a document of so many lines.
std::string Whole(int lines) {
    std::string text;
    for (int i = 1; i <= lines; ++i) {
        text += "line " + std::to_string(i) + ".\n";
    }
    return text;
}

/// How many lines `text` has, the last one perhaps half; -1 where it is anything but the beginning
/// of the document.
int LinesIn(std::string text) {
    std::erase(text, '\r');
    const int lines = static_cast<int>(std::ranges::count(text, '.'));
    return Whole(lines + 1).starts_with(text) ? lines : -1;
}

class Kill : public WindowsFixture {};

/// Types and saves until somebody ends it, and notes when each line was typed and saved.
class Typist {
  public:
    Typist(const ServiceSet& services, SystemRandomSource& random, const std::string& folder)
        : recovery_(folder + "/state", services.dialogs),
          window_(services, MakeWindowKinds(random, &recovery_)),
          log_(folder + "/log") {
        recovery_.Begin(window_.Area(), Interval());
        window_.resize(800, 600);
        window_.show();
        for (const std::string file : kFiles) {
            editors_.push_back(window_.Open(form::kEdit));
            if (!file.empty()) {
                editors_.back()->Load(folder + "/" + file);
            }
        }
    }

    void TypeLine(int document) {
        const QString line = QString("line %1.\r").arg(++lines_[document]);
        QTest::keyClicks(editors_[document]->findChild<QWidget*>("txtOut"), line);
        Note('t', document);
    }
    void Save(int document) {
        QTest::mouseClick(editors_[document]->findChild<QPushButton*>("btnSave"), Qt::LeftButton);
        Note('s', document);
    }

  private:
    void Note(char what, int document) {
        log_ << what << ' ' << document << ' ' << lines_[document] << ' ' << Now().count() << '\n'
             << std::flush;
    }

    Recovery recovery_;
    frmMain window_;
    std::ofstream log_;
    std::vector<ChildWindow*> editors_;
    int lines_[kDocuments] = {};
};

// Not a test, but what Kill.* starts in a process of its own.
TEST_F(Kill, DISABLED_Typist) {
    const std::string work = qEnvironmentVariable(kWorkFolder).toStdString();
    ASSERT_FALSE(work.empty());
    Typist typist(Services(), random, work);
    std::mt19937 dice(static_cast<unsigned>(qEnvironmentVariableIntValue("QUENLOFT_KILL_SEED")));
    for (;;) {
        const int document = static_cast<int>(dice() % kDocuments);
        typist.TypeLine(document);
        if (*kFiles[document] && dice() % 8 == 0) {
            typist.Save(document);
        }
        QTest::qWait(static_cast<int>(dice() % 10));
    }
}

/// One kill, and what is found after it.
class Scene {
  public:
    Scene(const TempFolder& folder, int number)
        : name_("kill" + std::to_string(number)), folder_(folder) {
        folder.Write(name_ + "/" + kFiles[0], "");
    }

    void Play(unsigned seed, milliseconds duration) {
        QProcess typist;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString work = QString::fromStdString(folder_.Path(name_));
        environment.insert(kWorkFolder, work);
        environment.insert("TMPDIR", work);
        environment.insert("QUENLOFT_KILL_SEED", QString::number(seed));
        typist.setProcessEnvironment(environment);
        typist.setStandardOutputFile(work + "/out");
        typist.start(QCoreApplication::applicationFilePath(),
                     {"--gtest_filter=Kill.DISABLED_Typist", "--gtest_also_run_disabled_tests"});
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFile(work + "/log").size() > 0; }, 60000));
        QTest::qWait(static_cast<int>(duration.count()));
        ASSERT_EQ(typist.state(), QProcess::Running) << Read("out");
        killed_ = Now();
        typist.kill();
        ASSERT_TRUE(typist.waitForFinished());
        ReadLog();
    }

    std::string StateFolder() const { return folder_.Path(name_ + "/state"); }
    std::string Read(const std::string& file) const { return folder_.Read(name_ + "/" + file); }

    /// The file holds the whole text of some save, none older than the last one that came back.
    void ExpectWholeFile() {
        const std::string text = Read(kFiles[0]);
        found_[0] = LinesIn(text);
        EXPECT_TRUE(text.empty() || text.ends_with(".\r\n")) << text;
        EXPECT_GE(found_[0], saved_[0]);
    }
    void ExpectKept(const std::vector<LeftText>& left) {
        for (const LeftText& text : left) {
            const int i = text.kept.path.empty() ? 1 : 0;
            const int lines = LinesIn(ReadableKept(text.kept));
            EXPECT_GE(lines, 0) << ReadableKept(text.kept);
            found_[i] = std::max(found_[i], lines);
        }
    }
    /// For how long before the kill some line was typed that is nowhere.
    milliseconds Loss() const {
        milliseconds loss{0};
        for (int i = 0; i < kDocuments; ++i) {
            const std::vector<milliseconds>& times = typed_[i];
            const auto found = static_cast<std::size_t>(found_[i]);
            if (found < times.size()) {
                loss = std::max(loss, killed_ - times[found]);
            }
        }
        return loss;
    }

  private:
    void ReadLog() {
        std::ifstream log(folder_.Path(name_ + "/log"));
        char what = 0;
        int document = 0;
        int line = 0;
        std::int64_t time = 0;
        while (log >> what >> document >> line >> time) {
            if (what == 't') {
                typed_[document].emplace_back(time);
            } else {
                saved_[document] = line;
            }
        }
    }

    const std::string name_;
    const TempFolder& folder_;
    milliseconds killed_{0};
    std::vector<milliseconds> typed_[kDocuments];  ///< When each line was.
    int saved_[kDocuments] = {};                   ///< Lines of the last save.
    int found_[kDocuments] = {};                   ///< Lines that are there after the kill.
};

TEST_F(Kill, LosesLittleAndDamagesNothing) {
    const int kills = std::max(qEnvironmentVariableIntValue("QUENLOFT_KILLS"), 20);
    std::mt19937 dice(static_cast<unsigned>(qEnvironmentVariableIntValue("QUENLOFT_KILL_SEED")));
    const milliseconds longest = 3 * Interval() + kSlack;
    milliseconds loss{0};
    std::size_t kept = 0;
    for (int i = 0; i < kills && !HasFailure(); ++i) {
        SCOPED_TRACE("kill " + std::to_string(i));
        Scene scene(folder, i);
        const auto duration = dice() % static_cast<unsigned>(longest.count());
        ASSERT_NO_FATAL_FAILURE(scene.Play(dice(), milliseconds(duration)));
        Start next(Services(), random, scene.StateFolder());
        const std::vector<LeftText> left = next.recovery.Left();
        EXPECT_TRUE(next.recovery.SetAside().empty());
        scene.ExpectWholeFile();
        scene.ExpectKept(left);
        EXPECT_LE(scene.Loss(), Interval() + kSlack);
        for (const LeftText& text : left) {
            next.recovery.Restore(text, next.window);
            EXPECT_TRUE(next.window.Area().currentSubWindow()->widget()->isWindowModified());
        }
        EXPECT_TRUE(next.recovery.Left().empty());
        loss = std::max(loss, scene.Loss());
        kept += left.size();
    }
    std::cout << kills << " kills, " << kept << " unsaved texts found; at most " << loss.count()
              << " ms of typing lost.\n";
}

}  // namespace
}  // namespace quenloft
