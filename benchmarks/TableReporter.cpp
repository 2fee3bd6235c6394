#include "TableReporter.h"

#include <QtCore/QTextStream>

#include <algorithm>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

struct Wording {
  QString figure;
  /// At 10,000 items.
  QString aim;
};

/// How a benchmark is worded in the table; the others go by their own names, with no aim.
Wording wordingOf(const QString &name) {
  static const QMap<QString, Wording> wordings{
      {u"readAndDecode"_s, {u"read and decode the data file"_s, u"40 ms"_s}},
      {u"encode"_s, {u"encode the data file"_s, u"12 ms"_s}},
      {u"search/letter"_s, {u"change the query: a letter"_s, u"4 ms"_s}},
      {u"search/word"_s, {u"change the query: a word"_s, u"4 ms"_s}},
      {u"search/scoped"_s, {u"change the query: a scope and a word"_s, u"4 ms"_s}},
      {u"search/accented"_s, {u"change the query: a word with accents"_s, u"4 ms"_s}},
      {u"searchByPosition"_s, {u"change the query: a letter, read as the panel does"_s, u"4 ms"_s}},
      {u"buildIndex/mixed"_s, {u"fold all names and paths, some not ASCII"_s, u"–"_s}},
      {u"buildIndex/ascii"_s, {u"fold all names and paths, all ASCII"_s, u"–"_s}},
      {u"start"_s, {u"start the store"_s, u"–"_s}},
      {u"openItem"_s, {u"open an item, with the save"_s, u"–"_s}},
  };
  return wordings.value(name, {name, u"–"_s});
}

}  // namespace

bool TableReporter::ReportContext(const Context & /*context*/) {
  return true;
}

void TableReporter::ReportRuns(const std::vector<Run> &runs) {
  for (const Run &run : runs) {
    if (run.run_type != Run::RT_Iteration) {
      continue;
    }
    const double seconds =
        run.real_accumulated_time / static_cast<double>(std::max<int64_t>(run.iterations, 1));
    figureNamed(QString::fromStdString(run.run_name.function_name))
        .byItemCount[QString::fromStdString(run.run_name.args)]
        .add(std::chrono::duration<double>(seconds));
  }
}

void TableReporter::Finalize() {
  QTextStream output(stdout);
  for (const Figure &figure : m_figures) {
    const Wording wording = wordingOf(figure.name);
    output << "| " << wording.figure << " | ";
    for (const QString &itemCount : {u"1000"_s, u"10000"_s, u"100000"_s}) {
      output << figure.byItemCount.value(itemCount).text() << " | ";
    }
    output << wording.aim << " |" << Qt::endl;
  }
}

TableReporter::Figure &TableReporter::figureNamed(const QString &name) {
  const auto known = std::find_if(m_figures.begin(), m_figures.end(),
                                  [&](const Figure &figure) { return figure.name == name; });
  return known != m_figures.end() ? *known : m_figures.emplace_back(Figure{name, {}});
}

}  // namespace lanternix
