#include "Platform/Linux/AutostartLoginItem.h"
#include "Platform/Linux/PosixFileManager.h"
#include "support/TemporaryHome.h"
#include "support/TemporaryVariable.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;
using Status = LoginItem::Status;

class AutostartLoginItemTest : public testing::Test {
 protected:
  void SetUp() override { install(program); }

  /// Puts something that can be run at \p path.
  static void install(const QString &path) {
    TemporaryHome::write(path, "#!/bin/sh\n");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  /// The user's entry with these lines, after the ones that every entry has.
  Status statusWith(const QByteArray &lines) const {
    return statusOf("[Desktop Entry]\nType=Application\nName=Lanternix\n" + lines + '\n');
  }
  Status statusOf(const QByteArray &entry) const {
    TemporaryHome::write(userEntry, entry);
    return item.status();
  }
  QByteArray exec() const { return "Exec=" + QFile::encodeName(program); }

  TemporaryHome home;
  PosixFileManager fileManager;
  QString program = home.root() + u"/opt/bin/lanternix"_s;
  QString userEntry = home.configHome() + u"/autostart/org.lanternix.Lanternix.desktop"_s;
  QString systemEntry = home.root() + u"/xdg/autostart/org.lanternix.Lanternix.desktop"_s;
  TemporaryVariable systemDirectories{"XDG_CONFIG_DIRS",
                                      QFile::encodeName(home.root() + u"/xdg"_s)};
  TemporaryVariable searchPath{"PATH", QFile::encodeName(home.root() + u"/bin"_s)};
  TemporaryVariable desktop{"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"};
  AutostartLoginItem item{fileManager, program};
};

// --- What counts as enabled
// -----------------------------------------------------------------------

TEST_F(AutostartLoginItemTest, WithoutAnEntry_IsNotRegistered) {
  EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(AutostartLoginItemTest, EntryThatStartsTheProgram_IsEnabled) {
  EXPECT_EQ(statusWith(exec()), Status::enabled);
  EXPECT_EQ(statusWith(exec() + " --quiet %u"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, EntryThatIsNone_IsNotFound) {
  EXPECT_EQ(statusOf(""), Status::notFound);
  EXPECT_EQ(statusOf("rubbish\n" + exec()), Status::notFound);
  EXPECT_EQ(statusOf("[Other Group]\nType=Application\n" + exec()), Status::notFound);
  EXPECT_EQ(statusOf(QByteArray("\0\xff\xfe", 3)), Status::notFound);
  EXPECT_EQ(statusOf("[Desktop Entry]\n" + exec()), Status::notFound) << "of no type";
  EXPECT_EQ(statusOf("[Desktop Entry]\nType=Link\n" + exec()), Status::notFound);
}

TEST_F(AutostartLoginItemTest, DirectoryInPlaceOfTheEntry_IsNotFound) {
  QDir().mkpath(userEntry);
  EXPECT_EQ(item.status(), Status::notFound);
}

TEST_F(AutostartLoginItemTest, LinkToNowhereInPlaceOfTheEntry_CountsAsTheUsersOwn) {
  TemporaryHome::write(systemEntry, "[Desktop Entry]\nType=Application\nName=Lanternix\n" + exec());
  ASSERT_EQ(item.status(), Status::enabled);
  QDir().mkpath(QFileInfo(userEntry).path());
  ASSERT_TRUE(QFile::link(home.root() + u"/gone"_s, userEntry));
  EXPECT_EQ(item.status(), Status::notFound);
}

TEST_F(AutostartLoginItemTest, HiddenEntry_IsNotRegistered) {
  EXPECT_EQ(statusWith(exec() + "\nHidden=true"), Status::notRegistered);
  EXPECT_EQ(statusWith(exec() + "\nHidden=false"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, EntryDisabledByTheDesktop_WaitsForApproval) {
  EXPECT_EQ(statusWith(exec() + "\nX-GNOME-Autostart-enabled=false"), Status::requiresApproval);
  EXPECT_EQ(statusWith(exec() + "\nX-GNOME-Autostart-enabled=true"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, EntryForOtherDesktopsOnly_WaitsForApproval) {
  EXPECT_EQ(statusWith(exec() + "\nOnlyShowIn=KDE;XFCE;"), Status::requiresApproval);
  EXPECT_EQ(statusWith(exec() + "\nOnlyShowIn=KDE;GNOME;"), Status::enabled);
  EXPECT_EQ(statusWith(exec() + "\nOnlyShowIn="), Status::requiresApproval);
}

TEST_F(AutostartLoginItemTest, EntryNotForThisDesktop_WaitsForApproval) {
  EXPECT_EQ(statusWith(exec() + "\nNotShowIn=KDE;GNOME;"), Status::requiresApproval);
  EXPECT_EQ(statusWith(exec() + "\nNotShowIn=KDE;"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, MostSpecialNameOfTheDesktop_Decides) {
  EXPECT_EQ(statusWith(exec() + "\nOnlyShowIn=ubuntu;\nNotShowIn=GNOME;"), Status::enabled);
  EXPECT_EQ(statusWith(exec() + "\nOnlyShowIn=GNOME;\nNotShowIn=ubuntu;"),
            Status::requiresApproval);
}

TEST_F(AutostartLoginItemTest, EntryWhoseConditionIsMissing_IsNotFound) {
  EXPECT_EQ(statusWith(exec() + "\nTryExec=/no/such/program"), Status::notFound);
  EXPECT_EQ(statusWith(exec() + "\nTryExec=" + QFile::encodeName(program)), Status::enabled);
}

TEST_F(AutostartLoginItemTest, EntryThatStartsSomethingElse_IsNotFound) {
  install(home.root() + u"/old/lanternix"_s);
  EXPECT_EQ(statusWith("Exec=" + QFile::encodeName(home.root()) + "/old/lanternix"),
            Status::notFound);
  EXPECT_EQ(statusWith("Exec=/no/such/program"), Status::notFound);
  EXPECT_EQ(statusWith("Exec=bin/lanternix"), Status::notFound);
  EXPECT_EQ(statusWith("Exec="), Status::notFound);
  EXPECT_EQ(statusWith("Comment=without a command"), Status::notFound);
  EXPECT_EQ(statusWith("Exec=\"" + QFile::encodeName(program)), Status::notFound)
      << "a quote that does not end";
}

TEST_F(AutostartLoginItemTest, EntryOfAProgramThatCannotBeRun_IsNotFound) {
  QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner);
  EXPECT_EQ(statusWith(exec()), Status::notFound);
}

TEST_F(AutostartLoginItemTest, NameOnThePath_IsLookedUp) {
  EXPECT_EQ(statusWith("Exec=lanternix"), Status::notFound);
  QDir().mkpath(home.root() + u"/bin"_s);
  QFile::link(program, home.root() + u"/bin/lanternix"_s);
  EXPECT_EQ(statusWith("Exec=lanternix"), Status::enabled);
}

TEST_F(AutostartLoginItemTest, SystemWideEntry_CountsWhereTheUserHasNone) {
  TemporaryHome::write(systemEntry, "[Desktop Entry]\nType=Application\n" + exec());
  EXPECT_EQ(item.status(), Status::enabled);
  EXPECT_EQ(statusWith(exec() + "\nHidden=true"), Status::notRegistered);
}

// --- Registering
// ----------------------------------------------------------------------------------

TEST_F(AutostartLoginItemTest, Register_IsEnabled) {
  EXPECT_EQ(item.registerItem(), std::nullopt);
  EXPECT_EQ(item.status(), Status::enabled);
  EXPECT_EQ(item.registerItem(), std::nullopt) << "once more";
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, Register_WritesTheEntryAndNothingBesideIt) {
  ASSERT_EQ(item.registerItem(), std::nullopt);
  const QByteArray path = QFile::encodeName(program);
  EXPECT_EQ(TemporaryHome::read(userEntry),
            "[Desktop Entry]\nType=Application\nName=Lanternix\nExec=" + path +
                "\nTryExec=" + path + "\nIcon=org.lanternix.Lanternix\nTerminal=false\n");
  EXPECT_EQ(QDir(QFileInfo(userEntry).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(AutostartLoginItemTest, Register_ReplacesWhateverWasThere) {
  EXPECT_NE(statusWith("Exec=/no/such/program\nHidden=true\nOnlyShowIn=KDE;\n"
                       "X-GNOME-Autostart-enabled=false"),
            Status::enabled);
  ASSERT_EQ(item.registerItem(), std::nullopt);
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, Register_NamesTheProgramAsItIsInstalled) {
  QDir().mkpath(home.root() + u"/bin"_s);
  const QString installed = home.root() + u"/bin/lanternix"_s;
  ASSERT_TRUE(QFile::link(program, installed));
  ASSERT_EQ(item.registerItem(), std::nullopt);
  EXPECT_TRUE(
      TemporaryHome::read(userEntry)->contains("Exec=" + QFile::encodeName(installed) + '\n'));
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, Register_PassesOverAnotherProgramOfTheSameName) {
  install(home.root() + u"/bin/lanternix"_s);
  ASSERT_EQ(item.registerItem(), std::nullopt);
  EXPECT_EQ(item.status(), Status::enabled);
}

TEST_F(AutostartLoginItemTest, MovedProgram_IsOffUntilItIsRegisteredAnew) {
  ASSERT_EQ(item.registerItem(), std::nullopt);
  const QString moved = home.root() + u"/elsewhere/lanternix"_s;
  QDir().mkpath(home.root() + u"/elsewhere"_s);
  ASSERT_TRUE(QFile::rename(program, moved));
  AutostartLoginItem movedItem(fileManager, moved);
  EXPECT_EQ(movedItem.status(), Status::notFound);
  ASSERT_EQ(movedItem.registerItem(), std::nullopt);
  EXPECT_EQ(movedItem.status(), Status::enabled);
}

class AutostartPathTest : public AutostartLoginItemTest,
                          public testing::WithParamInterface<const char *> {};

TEST_P(AutostartPathTest, RegisteredProgram_IsFoundAgain) {
  const QString odd = home.root() + u'/' + QString::fromUtf8(GetParam()) + u"/lanternix"_s;
  install(odd);
  AutostartLoginItem oddItem(fileManager, odd);
  ASSERT_EQ(oddItem.registerItem(), std::nullopt);
  EXPECT_EQ(oddItem.status(), Status::enabled) << TemporaryHome::read(userEntry)->toStdString();
  EXPECT_EQ(item.status(), Status::notFound);
}

INSTANTIATE_TEST_SUITE_P(Odd, AutostartPathTest,
                         testing::Values("with blanks", "  ", "\"quoted\"", "it's", "50%", "%f %%",
                                         "$HOME", "`id`", "back\\slash", "end\\", "new\nline",
                                         "tab\t", "a;b&c|d", "#hash", "(*?)", "~", "<>", "größe",
                                         "-dash", "a=b"));

// --- Unregistering
// --------------------------------------------------------------------------------

TEST_F(AutostartLoginItemTest, Unregister_RemovesTheEntry) {
  ASSERT_EQ(item.registerItem(), std::nullopt);
  EXPECT_EQ(item.unregisterItem(), std::nullopt);
  EXPECT_FALSE(QFile::exists(userEntry));
  EXPECT_EQ(item.status(), Status::notRegistered);
}

TEST_F(AutostartLoginItemTest, Unregister_WithoutAnEntry_DoesNothing) {
  EXPECT_EQ(item.unregisterItem(), std::nullopt);
  EXPECT_FALSE(QFile::exists(home.configHome()));
}

TEST_F(AutostartLoginItemTest, Unregister_MasksASystemWideEntry) {
  TemporaryHome::write(systemEntry, "[Desktop Entry]\nType=Application\n" + exec());
  EXPECT_EQ(item.unregisterItem(), std::nullopt);
  EXPECT_EQ(item.status(), Status::notRegistered);
  EXPECT_TRUE(QFile::exists(systemEntry));
  EXPECT_EQ(item.registerItem(), std::nullopt);
  EXPECT_EQ(item.status(), Status::enabled);
}

// --- Failures
// -------------------------------------------------------------------------------------

TEST_F(AutostartLoginItemTest, WithoutAHome_RegisteringSaysWhy) {
  TemporaryHome::write(home.root() + u"/file"_s, "");
  const TemporaryVariable nowhere("XDG_CONFIG_HOME",
                                  QFile::encodeName(home.root() + u"/file/config"_s));
  const auto error = item.registerItem();
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(*error, home.root() + u"/file/config/autostart: Not a directory"_s);
  EXPECT_EQ(item.unregisterItem(), std::nullopt) << "there is nothing to remove";
}

/// Runs \p operation in a process of its own, where \p hinder has been called. True when it failed
/// with a description.
template <typename Hinder, typename Operation>
bool failsWhen(Hinder hinder, Operation operation) {
  const pid_t child = fork();
  if (child == 0) {
    hinder();
    const std::optional<QString> error = operation();
    _exit(error.has_value() && !error->isEmpty() ? 0 : 1);
  }
  int status = -1;
  return waitpid(child, &status, 0) == child && status == 0;
}

TEST_F(AutostartLoginItemTest, OnAFullDisk_RegisteringFailsAndTheOldEntryStays) {
  statusWith("Exec=/no/such/program");
  const auto before = TemporaryHome::read(userEntry);
  EXPECT_TRUE(failsWhen(
      [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit none{0, 0};
        setrlimit(RLIMIT_FSIZE, &none);
      },
      [this] { return item.registerItem(); }));
  EXPECT_EQ(TemporaryHome::read(userEntry), before);
  EXPECT_EQ(QDir(QFileInfo(userEntry).path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(AutostartLoginItemTest, InADirectoryNotToBeWritten_BothFail) {
  ASSERT_EQ(item.registerItem(), std::nullopt);
  QFile::setPermissions(home.root(), QFile::Permissions(0x7755));
  const QString directory = QFileInfo(userEntry).path();
  QFile::setPermissions(directory, QFile::ReadOwner | QFile::ExeOwner);
  const auto becomeNobody = [] {
    constexpr uid_t nobody = 65534;
    if (geteuid() == 0 && seteuid(nobody) != 0) {  // nothing is forbidden to root
      _exit(2);
    }
  };
  EXPECT_TRUE(failsWhen(becomeNobody, [this] { return item.registerItem(); }));
  EXPECT_TRUE(failsWhen(becomeNobody, [this] { return item.unregisterItem(); }));
  QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_EQ(item.status(), Status::enabled);
}

}  // namespace
}  // namespace lanternix
