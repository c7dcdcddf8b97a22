#include "screens/logo.h"

#include <QPainter>
#include <QPainterPath>

void peindreLogo(QPainter &peintre, const QRectF &carre)
{
    const QColor bleu(0x1f, 0x5f, 0xa8);
    const QColor soleil(0xf5, 0xa6, 0x23);

    peintre.save();
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(carre.topLeft());
    peintre.scale(carre.width() / 100, carre.height() / 100);

    QPainterPath disque;
    disque.addEllipse(QRectF(0, 0, 100, 100));
    peintre.fillPath(disque, bleu);

    // The sun, with its lower part behind the roof.
    peintre.setPen(QPen(soleil, 4, Qt::SolidLine, Qt::RoundCap));
    for (int rayon = 0; rayon < 5; ++rayon) {
        const QLineF direction = QLineF::fromPolar(1, 45.0 * rayon);
        peintre.drawLine(QPointF(50, 40) + 22 * direction.p2(), QPointF(50, 40) + 30 * direction.p2());
    }
    QPainterPath astre;
    astre.addEllipse(QPointF(50, 40), 16, 16);
    peintre.fillPath(astre, soleil);

    QPainterPath maison;
    maison.addPolygon(QPolygonF{QPointF(26, 60), QPointF(50, 39), QPointF(74, 60), QPointF(74, 82),
                                QPointF(26, 82), QPointF(26, 60)});
    peintre.fillPath(maison, bleu);
    peintre.setPen(QPen(Qt::white, 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.drawPolyline(QPolygonF{QPointF(17, 65), QPointF(50, 37), QPointF(83, 65)});
    peintre.drawPolyline(QPolygonF{QPointF(29, 62), QPointF(29, 82), QPointF(71, 82), QPointF(71, 62)});
    QPainterPath porte;
    porte.addRect(QRectF(44, 62, 12, 20));
    peintre.fillPath(porte, Qt::white);
    peintre.restore();
}
