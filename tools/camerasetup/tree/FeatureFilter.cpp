#include "tools/camerasetup/tree/FeatureFilter.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

using namespace CvxCPP;

namespace {

bool containsAll(const QString &text, const QStringList &words)
{
    return std::all_of(
        words.begin(), words.end(), [&text](const QString &word) { return text.contains(word); });
}

} // namespace

FeatureFilter::FeatureFilter(FeatureTreeModel &model, QObject *parent)
    : QSortFilterProxyModel(parent), m_model(model)
{
    // Connected before the base class follows the model, so its questions are answered for the new features.
    connect(&model, &QAbstractItemModel::modelReset, this, &FeatureFilter::noteFeatures);
    connect(&model, &FeatureTreeModel::marksChanged, this, &FeatureFilter::followMarks);
    setDynamicSortFilter(false); // A new value changes no decision.
    noteFeatures();
    setSourceModel(&model);
}

void FeatureFilter::setText(const QString &text)
{
    m_text = text;
    const QStringList words
        = text.toLower().split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    if (words == m_words)
        return;
    m_words = words;
    refilter();
}

void FeatureFilter::setLevel(NodeVisibility level)
{
    if (std::exchange(m_level, level) != level)
        refilter();
}

void FeatureFilter::setOnlyChanged(bool isOnly)
{
    if (std::exchange(m_isOnlyChanged, isOnly) != isOnly)
        refilter();
}

void FeatureFilter::setOnlyFavourites(bool isOnly)
{
    if (std::exchange(m_isOnlyFavourites, isOnly) != isOnly)
        refilter();
}

void FeatureFilter::clear()
{
    m_text.clear();
    m_words.clear();
    m_isOnlyChanged = false;
    m_isOnlyFavourites = false;
    refilter();
}

void FeatureFilter::noteFeatures()
{
    m_names.clear();
    m_texts.clear();
    for (int feature = 0; feature < m_model.featureCount(); ++feature) {
        const NodeInfo &info = m_model.info(feature);
        const QString name = QString::fromStdString(info.name + '\n' + info.displayName).toLower();
        m_names.push_back(name);
        m_texts.push_back(
            name + QString::fromStdString('\n' + info.toolTip + '\n' + info.description).toLower());
    }
    update();
}

void FeatureFilter::followMarks()
{
    if (m_isOnlyChanged || m_isOnlyFavourites)
        refilter();
}

void FeatureFilter::refilter()
{
    emit aboutToFilter();
    const std::vector<char> previous = m_isAccepted;
    update();
    if (m_isAccepted != previous)
        invalidateFilter();
    emit filtered();
}

/// Decides anew which features are shown.
void FeatureFilter::update()
{
    m_isAccepted.assign(std::size_t(m_model.featureCount()), 0);
    m_hiddenByLevel = 0;
    for (const int feature : m_model.tree().children(FeatureTree::none))
        decide(feature, false);
}

FeatureFilter::Match FeatureFilter::match(int feature) const
{
    const auto place = std::size_t(feature);
    if (m_model.info(feature).type == NodeType::Category) // Changed and favourite are features only.
        return !m_words.isEmpty() && containsAll(m_names[place], m_words) ? Match::Name : Match::None;
    if (!containsAll(m_texts[place], m_words))
        return Match::None;
    if (!m_isOnlyChanged && !m_isOnlyFavourites)
        return Match::Own;
    const FeatureTreeModel::Marks marks = m_model.marks(feature);
    const bool isShown = (!m_isOnlyChanged || marks.testFlag(FeatureTreeModel::ChangedMark))
        && (!m_isOnlyFavourites || marks.testFlag(FeatureTreeModel::FavouriteMark));
    return isShown ? Match::Own : Match::None;
}

/// Decides for a feature and everything below it. Returns true if any of them is shown.
bool FeatureFilter::decide(int feature, bool isInNamedCategory)
{
    const Match own = match(feature);
    const NodeInfo &info = m_model.info(feature);
    const bool isFeature = info.type != NodeType::Category;
    const bool isMatch = isFeature && (own == Match::Own || isInNamedCategory);
    bool isShown = isMatch && info.visibility <= m_level;
    if (isMatch && !isShown && info.visibility != NodeVisibility::Invisible)
        ++m_hiddenByLevel;
    for (const int child : m_model.tree().children(feature))
        isShown |= decide(child, isInNamedCategory);
    if (!isShown && own == Match::Name && !m_isOnlyChanged && !m_isOnlyFavourites && !isInNamedCategory) {
        for (const int child : m_model.tree().children(feature))
            isShown |= decide(child, true);
    }
    m_isAccepted[std::size_t(feature)] = isShown;
    return isShown;
}

bool FeatureFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    const auto &siblings = m_model.tree().children(FeatureTreeModel::featureOf(parent));
    return m_isAccepted[std::size_t(siblings[std::size_t(row)])];
}
