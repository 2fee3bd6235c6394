// Prints the figures of the whole program as rows of a table: figure, 1,000 items, 10,000 items,
// 100,000 items (left out), what is aimed at.
#include "PressToPicture.h"
#include "support/SampleGroups.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <exception>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

QByteArray documentOf(int itemCount, int groupCount = 100, bool firstIsFolded = false) {
  SampleGroups groups;
  for (int group = 0; group < groupCount; ++group) {
    SampleGroups::GroupOptions options;
    options.isExpanded = group > 0 || !firstIsFolded;
    groups.group(u"Group %1"_s.arg(group), options);
    for (int item = 0; item < itemCount / groupCount; ++item) {
      const QString name = u"Item %1 of group %2"_s.arg(item).arg(group);
      switch (item % 4) {
        case 0:
          groups.directory(name, u"/usr/share/doc/directory-%1"_s.arg(item));
          break;
        case 1:
          groups.file(name, u"/usr/share/doc/file-%1.txt"_s.arg(item));
          break;
        case 2:
          groups.link(name, u"https://example.org/%1/%2"_s.arg(group).arg(item));
          break;
        default:
          groups.command(name, u"echo %1"_s.arg(item));
          break;
      }
    }
  }
  return groups.json();
}

class Table {
 public:
  Table(WholeProgramFigures few, WholeProgramFigures many, WholeProgramFigures folding,
        WholeProgramFigures settings, WholeProgramFigures arranging, WholeProgramFigures bare)
      : m_few(std::move(few)),
        m_many(std::move(many)),
        m_folding(std::move(folding)),
        m_settings(std::move(settings)),
        m_arranging(std::move(arranging)),
        m_bare(std::move(bare)) {}

  void print() {
    durations(u"start to held shortcut"_s, &WholeProgramFigures::startToHeldShortcut, u"80 ms"_s);
    durations(u"start to shown panel"_s, &WholeProgramFigures::startToShownPanel, u"380 ms"_s);
    durations(u"press to first picture"_s, &WholeProgramFigures::pressToFirstPicture, u"6 ms"_s);
    durations(u"press to settled"_s, &WholeProgramFigures::pressToSettled, u"10 ms"_s);
    durations(u"one typed letter to settled"_s, &WholeProgramFigures::letterToSettled, u"5 ms"_s);
    durations(u"one wheel step to settled"_s, &WholeProgramFigures::wheelStepToSettled, u"8 ms"_s);
    durations(u"Escape to unmapped"_s, &WholeProgramFigures::escapeToUnmapped, u"2 ms"_s);
    row(u"longest time between two frames while a group of 1,000 items unfolds"_s, u"–"_s,
        m_folding.longestGapWhileUnfolding.text(), u"–"_s);
    row(u"processor time per frame of it"_s, u"–"_s, m_folding.processorTimePerFrame.text(),
        u"16 ms"_s);
    row(u"Control+comma to settled settings, the first time"_s, u"–"_s,
        m_settings.openingToSettledSettings.text(), u"120 ms"_s);
    row(u"selecting a group of 1,000 items to settled"_s, u"–"_s,
        m_arranging.selectionToSettled.text(), u"30 ms"_s);
    row(u"dropping one of them to settled and saved"_s, u"–"_s, m_arranging.dropToSettled.text(),
        u"50 ms"_s);
    row(u"proportional set size, hidden"_s, megabytes(m_few.proportionalSetSizeKilobytes),
        megabytes(m_many.proportionalSetSizeKilobytes), u"40 MB"_s);
    row(u"resident set size, hidden"_s, megabytes(m_few.residentSetSizeKilobytes),
        megabytes(m_many.residentSetSizeKilobytes), u"–"_s);
    row(u"wake-ups while hidden"_s, QString::number(m_few.wakeUpsWhileHidden),
        QString::number(m_many.wakeUpsWhileHidden), u"0"_s);
    row(u"wake-ups a second while shown"_s, QString::number(m_few.wakeUpsWhileShown, 'f', 1),
        QString::number(m_many.wakeUpsWhileShown, 'f', 1), u"2"_s);
    const QString floor = u"a bare window instead: press to first picture"_s;
    row(floor, m_bare.pressToFirstPicture.text(), u"–"_s, u"–"_s);
    row(u"a bare window instead: press to settled"_s, m_bare.pressToSettled.text(), u"–"_s, u"–"_s);
  }

 private:
  void durations(const QString &figure, Series WholeProgramFigures::*series, const QString &aim) {
    row(figure, (m_few.*series).text(), (m_many.*series).text(), aim);
  }

  static QString megabytes(qint64 kilobytes) {
    constexpr double kilobytesPerMegabyte = 1024;
    return u"%1 MB"_s.arg(static_cast<double>(kilobytes) / kilobytesPerMegabyte, 0, 'f', 1);
  }

  static void row(const QString &figure, const QString &few, const QString &many,
                  const QString &aim) {
    QTextStream(stdout) << "| " << figure << " | " << few << " | " << many << " | – | " << aim
                        << " |" << Qt::endl;
  }

  WholeProgramFigures m_few;
  WholeProgramFigures m_many;
  WholeProgramFigures m_folding;
  WholeProgramFigures m_settings;
  WholeProgramFigures m_arranging;
  WholeProgramFigures m_bare;
};

}  // namespace
}  // namespace lanternix

int main(int argc, char **argv) {
  using namespace lanternix;
  const QCoreApplication application(argc, argv);
  Effort effort;
  if (QCoreApplication::arguments().contains(u"--quick"_s)) {
    effort = {.starts = 3,
              .presses = 8,
              .wheelSteps = 8,
              .foldings = 6,
              .arrangements = 6,
              .hiddenTime = std::chrono::seconds(5)};
  }
  try {
    PressToPicture benchmark(effort);
    constexpr int few = 1000;
    constexpr int many = 10000;
    Table(benchmark.measureProgram(documentOf(few)), benchmark.measureProgram(documentOf(many)),
          benchmark.measureFolding(documentOf(many, 10, true)),
          benchmark.measureSettings(documentOf(many)),
          benchmark.measureArranging(documentOf(many, 10)), benchmark.measureBareClient())
        .print();
  } catch (const std::exception &error) {
    QTextStream(stderr) << error.what() << Qt::endl;
    return 1;
  }
  return 0;
}
