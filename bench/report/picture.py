"""Draws how long we take beside each peer."""

import matplotlib

matplotlib.use("svg")
# Texts stay texts, and the same figures give the same file.
matplotlib.rcParams.update({"svg.fonttype": "none", "svg.hashsalt": "brennet",
                            "font.family": "sans-serif", "font.size": 9})

from matplotlib import pyplot  # noqa: E402
from matplotlib.ticker import FuncFormatter, NullFormatter  # noqa: E402

# Told apart by colour-blind eyes too; the sign says the same as the colour.
STYLES = {True: ("#0072b2", "target met"), False: ("#d55e00", "target missed"),
          None: ("#8a8a8a", "no target")}
ROW_INCHES = 0.2
SMALLEST, LARGEST = 1 / 64, 8


def draw(comparisons, path):
    """A bar for each comparison, from 1 to our share of the peer's time; a tick for its target."""
    figure, axes = pyplot.subplots(figsize=(9, 1.2 + ROW_INCHES * len(comparisons)))
    for y, row in enumerate(comparisons):
        colour, label = STYLES[row["met"]]
        ratio = min(max(row["ratio"], SMALLEST), LARGEST)
        axes.barh(y, ratio - 1, left=1, height=0.6, color=colour, label=label)
        half = ratio * row["spread"] / 2
        axes.plot([ratio - half, ratio + half], [y, y], color="#333333", linewidth=1)
        if row["target"] is not None:
            axes.plot([row["target"]] * 2, [y - 0.45, y + 0.45], color="black", linewidth=1.5)
        axes.annotate(f"{row['ratio']:.2f}", (LARGEST * 1.08, y), va="center", annotation_clip=False)
    axes.set_yticks(range(len(comparisons)),
                    [f"{row['group']}, {row['case']}: {row['peer']}" for row in comparisons])
    axes.set_ylim(len(comparisons) - 0.4, -0.6)
    axes.set_xscale("log", base=2)
    axes.set_xlim(SMALLEST, LARGEST)
    axes.xaxis.set_major_formatter(FuncFormatter(lambda x, _: f"{x:g}" if x >= 1 else f"1/{1 / x:g}"))
    axes.xaxis.set_minor_formatter(NullFormatter())
    axes.axvline(1, color="black", linewidth=0.8)
    axes.grid(axis="x", color="#dddddd", linewidth=0.5)
    axes.set_axisbelow(True)
    axes.set_title("Our time as a share of the peer's, left is faster; the tick is the target")
    handles = dict(zip(*reversed(axes.get_legend_handles_labels())))
    figure.legend(handles.values(), handles.keys(), loc="lower center", ncol=3, frameon=False)
    figure.tight_layout(rect=(0, 0.03, 1, 1))
    figure.savefig(path, format="svg", metadata={"Date": None})
    pyplot.close(figure)
