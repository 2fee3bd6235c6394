#include <QtCore/QMimeData>
#include <QtCore/QTextStream>
#include <QtGui/QDrag>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>
#include <utility>

// Some other program's window, from which the text that is given can be dragged. Says after
// each drag "taken" or "refused".
namespace {

class TextSource : public QWidget {
 public:
  explicit TextSource(QString text) : m_text(std::move(text)) {
    setWindowTitle(QStringLiteral("Text"));
    constexpr QRect place(5, 40, 180, 120);
    setGeometry(place);
  }

 protected:
  void mousePressEvent(QMouseEvent *event) override { m_press = event->position().toPoint(); }

  void mouseMoveEvent(QMouseEvent *event) override {
    const QPoint way = event->position().toPoint() - m_press;
    if (way.manhattanLength() < QApplication::startDragDistance()) {
      return;
    }
    auto *drag = new QDrag(this);  // which deletes itself when it is over
    auto payload = std::make_unique<QMimeData>();
    payload->setText(m_text);
    drag->setMimeData(payload.release());
    const bool isTaken = drag->exec(Qt::CopyAction | Qt::MoveAction) != Qt::IgnoreAction;
    QTextStream(stdout) << (isTaken ? "taken" : "refused") << Qt::endl;
  }

 private:
  QString m_text;
  QPoint m_press;
};

}  // namespace

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  TextSource source(QApplication::arguments().value(1));
  source.show();
  return QApplication::exec();
}
