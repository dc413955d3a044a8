// preview_not_blank PNG X Y W H: exits 0 when the area of the picture holds a drawing, that
// is, enough pixels that differ from the area's most common colour, the page background.
#include <QColor>
#include <QHash>
#include <QImage>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 6) {
    std::fprintf(stderr, "usage: preview_not_blank PNG X Y W H\n");
    return 2;
  }
  const QImage image(QString::fromLocal8Bit(argv[1]));
  if (image.isNull()) {
    std::fprintf(stderr, "preview_not_blank: cannot read %s\n", argv[1]);
    return 2;
  }
  const QRect area =
      QRect(std::atoi(argv[2]), std::atoi(argv[3]), std::atoi(argv[4]), std::atoi(argv[5]))
          .intersected(image.rect());
  if (area.isEmpty()) {
    std::fprintf(stderr, "preview_not_blank: the preview area lies outside the picture\n");
    return 1;
  }
  QHash<QRgb, long> counts;
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x) ++counts[image.pixel(x, y)];
  QRgb background = 0;
  long most = 0;
  for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
    if (it.value() > most) {
      most = it.value();
      background = it.key();
    }
  }
  const long total = static_cast<long>(area.width()) * area.height();
  const long drawn = total - most;
  std::printf("%s: %ld of %ld pixels drawn over %s, %lld colours\n", argv[1], drawn, total,
              qPrintable(QColor(background).name()), static_cast<long long>(counts.size()));
  // A rendered sample covers a good part of the pane; a blank or failed page covers nothing.
  return drawn * 50 >= total ? 0 : 1;
}
