#pragma once

#include <QtWidgets/QWidget>

namespace lanternix {

/// A key cap and a word that says what the key does.
class KeyHintView : public QWidget {
  Q_OBJECT

 public:
  KeyHintView(QString key, QString word, QWidget *parent = nullptr);

  void setKey(const QString &key);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  QRectF keyCap() const;
  void updateAccessibleName();

  QString m_key;
  QString m_word;
};

}  // namespace lanternix
