#pragma once

class QPainter;
class QRectF;

/// Draws the logo of the forms: a roof, and the sun behind it.
void peindreLogo(QPainter &peintre, const QRectF &carre);
