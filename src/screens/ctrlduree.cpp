#include "screens/ctrlduree.h"

#include "screens/champnombre.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRegularExpressionValidator>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

QString nomUnite(QChar lettre)
{
    switch (lettre.unicode()) {
    case u'J':
        return u"Jours"_s;
    case u'H':
        return u"Heures"_s;
    case u'M':
        return u"Mois"_s;
    default:
        return lettre;
    }
}

} // namespace

ctrlDuree::ctrlDuree(QWidget *parent)
    : QWidget(parent), m_nombre(new ChampNombre(this)), m_unite(new QComboBox(this))
{
    auto *ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->addWidget(m_nombre);
    ligne->addWidget(m_unite);
    ligne->addStretch();
    m_nombre->setObjectName(u"nombre"_s);
    m_nombre->setAccessibleName(u"Durée, en nombre entier"_s);
    m_nombre->setAlignment(Qt::AlignRight);
    m_nombre->setFixedWidth(80);
    m_nombre->setValidator(new QRegularExpressionValidator(QRegularExpression(u"-?[0-9]*"_s), m_nombre));
    m_nombre->installEventFilter(this);
    m_unite->setObjectName(u"unite"_s);
    m_unite->setAccessibleName(u"Unité de la durée"_s);
    setFocusProxy(m_nombre);
    setUnites(u"JHM"_s);
    vider();
}

void ctrlDuree::setUnites(const QString &lettres)
{
    m_unite->clear();
    for (const QChar lettre : lettres)
        m_unite->addItem(nomUnite(lettre), lettre);
}

qint64 ctrlDuree::nombre() const
{
    const QString texte = m_nombre->text();
    bool lu = false;
    const qint64 nombre = texte.toLongLong(&lu);
    if (lu || texte.isEmpty() || texte == u"-")
        return nombre;
    return texte.startsWith(u'-') ? std::numeric_limits<qint64>::min() : std::numeric_limits<qint64>::max();
}

QChar ctrlDuree::unite() const { return m_unite->currentData().toChar(); }

void ctrlDuree::setDuree(qint64 nombre, QChar unite)
{
    // A unit that came from elsewhere is kept and shown as it is.
    if (m_unite->findData(unite) < 0)
        m_unite->addItem(nomUnite(unite), unite);
    m_nombre->setText(QString::number(nombre));
    m_unite->setCurrentIndex(m_unite->findData(unite));
}

void ctrlDuree::vider()
{
    m_nombre->setText(u"0"_s);
    m_unite->setCurrentIndex(0);
}

bool ctrlDuree::eventFilter(QObject *objet, QEvent *evenement)
{
    if (evenement->type() == QEvent::KeyPress) {
        const QString touche = static_cast<QKeyEvent *>(evenement)->text().toUpper();
        const int place = touche.size() == 1 ? m_unite->findData(touche[0]) : -1;
        if (place >= 0) {
            m_unite->setCurrentIndex(place);
            return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}
