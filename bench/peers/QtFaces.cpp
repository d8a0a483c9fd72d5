#include "peers/QtFaces.hpp"

#include "vistas/WO.hpp"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace peers {

namespace {

namespace WO = nurva::WO;

QColor color(const views::Color& color) {
    return QColor::fromRgbF(color.red, color.green, color.blue, color.alpha);
}

QString string(const std::string& text) {
    return QString::fromStdString(text);
}

/// A font of the same size in pixels, on the 96 dots per inch of a screen that says nothing else.
QFont font(double pixels, QFont::Weight weight = QFont::Normal, const char* family = "Inter") {
    QFont font(QString::fromLatin1(family));
    font.setPointSizeF(pixels * 72 / 96);
    font.setWeight(weight);
    return font;
}

// Fonts are shared, as they would be in a program that draws its face more than once.
const QFont& headingFont() {
    static const QFont heading = [] {
        QFont spaced = font(9, QFont::DemiBold);
        spaced.setLetterSpacing(QFont::AbsoluteSpacing, 0.9);
        return spaced;
    }();
    return heading;
}
const QFont& smallFont() {
    static const QFont small = font(10.5);
    return small;
}
const QFont& nameFont() {
    static const QFont name = font(12, QFont::DemiBold);
    return name;
}
const QFont& levelFont() {
    static const QFont level = font(11, QFont::Normal, "JetBrains Mono");
    return level;
}

QLabel* label(const QString& text, const QFont& font, const QColor& color, QWidget* card) {
    auto* label = new QLabel(card);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    label->setText(text);
    return label;
}

/// A button that is a sign on a rounded rectangle.
class SignButton : public QAbstractButton {
  public:
    struct Look {
        QSize size;
        QColor sign;
        QColor fill;
        QColor border;
        double opacity = 1;
    };
    SignButton(const QString& sign, const Look& look, QWidget* card)
        : QAbstractButton(card), look_(look) {
        setText(sign);
        setFixedSize(look.size);
    }
    QSize sizeHint() const override { return look_.size; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setOpacity(look_.opacity);
        painter.setPen(look_.border);
        painter.setBrush(look_.fill);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6.5, 6.5);
        painter.setPen(look_.sign);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

  private:
    Look look_;
};

/// A level whose tenths can be pressed.
class LevelBar : public QWidget {
  public:
    LevelBar(double level, const QColor& filled, std::function<void(double)> choose, QWidget* card)
        : QWidget(card), level_(level), filled_(filled), choose_(std::move(choose)) {
        setFixedHeight(16);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const double filled = width() * std::clamp(level_, 0.0, 1.0);
        painter.setBrush(color(WO::control));
        painter.drawRoundedRect(QRectF(0, 5.5, width(), 5), 2.5, 2.5);
        painter.setBrush(filled_);
        painter.drawRoundedRect(QRectF(0, 5.5, filled, 5), 2.5, 2.5);
        painter.setBrush(QColor::fromRgbF(0.847, 0.867, 0.875));
        painter.drawRoundedRect(QRectF(std::max(filled - 3.5, 0.0), 0, 7, 16), 3, 3);
    }
    void mousePressEvent(QMouseEvent* event) override {
        if (choose_)
            choose_(std::floor(event->localPos().x() / width() * 10 + 1) / 10);
    }

  private:
    double level_;
    QColor filled_;
    std::function<void(double)> choose_;
};

/// The curve of an equalizer on a scale of ±12 dB.
class Curve : public QWidget {
  public:
    Curve(std::vector<double> gains, const QColor& line, QWidget* card)
        : QWidget(card), gains_(std::move(gains)), line_(line) {
        setFixedHeight(44);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPolygonF points;
        const double steps = std::max(static_cast<double>(gains_.size()) - 1, 1.0);
        for (const double gain : gains_)
            points << QPointF(width() * points.size() / steps,
                              height() * (0.5 - std::clamp(gain, -12.0, 12.0) / 24));
        if (points.isEmpty())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath path;
        path.addPolygon(points);
        painter.strokePath(path, QPen(line_, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        path.lineTo(points.last().x(), height());
        path.lineTo(points.first().x(), height());
        QColor area = line_;
        area.setAlphaF(0.1);
        painter.fillPath(path, area);
    }

  private:
    std::vector<double> gains_;
    QColor line_;
};

class Dot : public QWidget {
  public:
    Dot(const QColor& fill, QWidget* card) : QWidget(card), fill_(fill) { setFixedSize(6, 6); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill_);
        painter.drawEllipse(rect());
    }

  private:
    QColor fill_;
};

std::unique_ptr<QWidget> emptyCard(int width, int height) {
    auto card = std::make_unique<QWidget>();
    QPalette palette = card->palette();
    palette.setColor(QPalette::Window, color(WO::fondo));
    card->setPalette(palette);
    card->setAutoFillBackground(true);
    card->resize(width, height);
    return card;
}

QVBoxLayout* column(QWidget& card, int spacing) {
    auto* column = new QVBoxLayout(&card);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(spacing);
    return column;
}

SignButton* stepButton(const nurva::AppCorta& app,
                       bool up,
                       bool active,
                       const Requests& requests,
                       QWidget* card) {
    auto* button = new SignButton(up ? QStringLiteral("+") : QStringLiteral("−"),
                                  {.size = {22, 22},
                                   .sign = color(active ? WO::texto2 : WO::texto3),
                                   .fill = color(WO::control),
                                   .border = color(WO::filete),
                                   .opacity = active ? 1 : 0.45},
                                  card);
    button->setEnabled(active);
    button->setAccessibleName(up ? QStringLiteral("Subir") : QStringLiteral("Bajar"));
    const double level = std::clamp(app.nivel + (up ? 0.1 : -0.1), 0.0, 1.0);
    QObject::connect(button, &QAbstractButton::clicked,
                     [&requests, id = string(app.id), level] { requests.setVolume(id, level); });
    return button;
}

SignButton* muteButton(const nurva::AppCorta& app,
                       bool active,
                       const Requests& requests,
                       QWidget* card) {
    const bool muted = app.silenciada;
    auto* button = new SignButton(muted ? QStringLiteral("🔇") : QStringLiteral("🔊"),
                                  {.size = {26, 22},
                                   .sign = color(muted ? WO::ambar : WO::texto2),
                                   .fill = color(muted ? WO::ambar.opacity(0.14) : WO::control),
                                   .border = color(muted ? WO::ambar.opacity(0.35) : WO::filete)},
                                  card);
    button->setEnabled(active);
    button->setAccessibleName(
        (muted ? QStringLiteral("Quitar silencio a ") : QStringLiteral("Silenciar ")) +
        string(app.nombre));
    QObject::connect(button, &QAbstractButton::clicked,
                     [&requests, id = string(app.id), muted] { requests.mute(id, !muted); });
    return button;
}

QHBoxLayout* row(const nurva::AppCorta& app,
                 const nurva::EstadoParaWidgets& estado,
                 const Requests& requests,
                 QWidget* card) {
    const bool muted = app.silenciada;
    const bool moves = estado.dejaCambiar && !muted;
    auto* row = new QHBoxLayout;
    row->setSpacing(7);

    static const QFontMetrics nameMetrics(nameFont());
    auto* name = label(nameMetrics.elidedText(string(app.nombre), Qt::ElideRight, 70), nameFont(),
                       color(muted ? WO::texto2 : WO::texto), card);
    name->setFixedWidth(70);
    row->addWidget(name);
    row->addWidget(stepButton(app, false, moves && app.nivel > 0, requests, card));
    std::function<void(double)> choose;
    if (estado.dejaCambiar)
        choose = [&requests, id = string(app.id)](double level) { requests.setVolume(id, level); };
    row->addWidget(new LevelBar(muted ? 0 : app.nivel,
                                muted ? color(WO::texto3) : QColor::fromRgb(estado.acento),
                                std::move(choose), card));
    row->addWidget(stepButton(app, true, moves && app.nivel < 1, requests, card));
    auto* level = label(muted ? QStringLiteral("mudo")
                              : QString::number(std::lround(app.nivel * 100)) + QLatin1Char('%'),
                        levelFont(), color(muted ? WO::ambar : WO::texto2), card);
    level->setFixedWidth(36);
    level->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(level);
    row->addWidget(muteButton(app, estado.dejaCambiar, requests, card));
    return row;
}

}  // namespace

std::unique_ptr<QWidget> volumeFace(const nurva::EstadoParaWidgets& estado,
                                    const Requests& requests) {
    auto card = emptyCard(364, 170);
    QVBoxLayout* faces = column(*card, 9);
    faces->addStretch();
    auto* header = new QHBoxLayout;
    header->setSpacing(5);
    header->addWidget(
        label(QStringLiteral("VOLUMEN POR APP"), headingFont(), color(WO::texto3), card.get()));
    header->addStretch();
    const auto playing = std::count_if(estado.apps.begin(), estado.apps.end(),
                                       [](const nurva::AppCorta& app) { return app.suena; });
    header->addWidget(label(QString::number(playing) + QStringLiteral(" sonando"), smallFont(),
                            color(WO::texto3), card.get()));
    faces->addLayout(header);
    for (const nurva::AppCorta& app : estado.apps)
        faces->addLayout(row(app, estado, requests, card.get()));
    faces->addWidget(label(
        estado.dejaCambiar ? QStringLiteral("− y + de 10 en 10 · o toca la barra donde lo quieras")
                           : QStringLiteral("Solo mirar · se enciende en Ajustes → Widgets"),
        smallFont(), color(WO::texto3), card.get()));
    faces->addStretch();
    faces->activate();
    return card;
}

std::unique_ptr<QWidget> whatIsOnFace(const nurva::EstadoParaWidgets& estado) {
    static const QFont profileFont = font(19, QFont::DemiBold);
    static const QFont reasonFont = font(11);
    static const QFontMetrics profileMetrics(profileFont);
    static const QFontMetrics reasonMetrics(reasonFont);
    static const QFontMetrics smallMetrics(smallFont());
    constexpr int width = 170 - 2 * 12;

    const QColor accent = QColor::fromRgb(estado.acento);
    auto card = emptyCard(170, 170);
    QVBoxLayout* parts = column(*card, 0);
    auto* header = new QHBoxLayout;
    header->setSpacing(5);
    header->addWidget(label(QStringLiteral("NURVA"), headingFont(), color(WO::texto3), card.get()));
    header->addStretch();
    header->addWidget(new Dot(estado.prendido ? accent : color(WO::texto3), card.get()));
    parts->addLayout(header);
    parts->addSpacing(10);
    parts->addWidget(new Curve(estado.curva, accent, card.get()));
    parts->addSpacing(6);
    parts->addStretch();
    parts->addWidget(label(profileMetrics.elidedText(string(estado.perfil), Qt::ElideRight, width),
                           profileFont, color(WO::texto), card.get()));
    if (!estado.razon.empty()) {
        QLabel* reason = label(string(estado.razon), reasonFont, color(WO::texto2), card.get());
        reason->setWordWrap(true);
        reason->setMaximumHeight(2 * reasonMetrics.lineSpacing());
        parts->addWidget(reason);
    }
    parts->addSpacing(4);
    parts->addWidget(label(smallMetrics.elidedText(string(estado.salida), Qt::ElideRight, width),
                           smallFont(), color(WO::texto3), card.get()));
    parts->activate();
    return card;
}

bool isLaidOut(const QWidget& face) {
    const auto parts = face.findChildren<QWidget*>();
    return !parts.isEmpty() && std::all_of(parts.begin(), parts.end(), [&](const QWidget* part) {
        const QRect place = part->geometry();
        return place.width() > 0 && place.height() > 0 && place.right() < face.width() &&
               place.left() >= 12;
    });
}

}  // namespace peers
