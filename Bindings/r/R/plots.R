# The pictures: base graphics, with colours that hold in print and for the colour-blind.

PALETTE <- c("#0072B2", "#D55E00", "#009E73", "#CC79A7", "#E69F00", "#56B4E9", "#000000", "#999999")
BLUE_TO_RED <- c("#2166AC", "#67A9CF", "#D1E5F0", "#F7F7F7", "#FDDBC7", "#EF8A62", "#B2182B")

# What the caller says goes before what is set here.
drawn <- function(draw, given, ...) do.call(draw, utils::modifyList(list(...), given))

#' Picture of a matrix of correlations
#'
#' A square for each pair, blue below 0 and red above, with the number in it.
#' @param x what \code{\link{vm_cor}} gave.
#' @param digits how many digits the numbers have; `NULL` for none.
#' @param reorder whether variables that go together are put next to each other.
#' @param ... further arguments of `plot.default`, as `main`.
#' @return `x`, invisibly.
#' @examples
#' plot(vm_cor(vm_penguins[3:6]))
#' @importFrom grDevices colorRampPalette
#' @importFrom graphics axis par rect text
#' @export
plot.vm_cor <- function(x, digits = 2, reorder = FALSE, ...) {
  r <- unclass(x)
  if (one_flag(reorder, "reorder")) r <- vm_reorder_correlations(r)$matrix
  p <- nrow(r)
  names <- if (is.null(rownames(r))) as.character(seq_len(p)) else rownames(r)
  before <- par(mar = c(1 + 0.45 * max(nchar(names)), max(4, 0.55 * max(nchar(names)) + 1), 3, 1))
  on.exit(par(before))
  drawn(plot, list(...), x = c(0.5, p + 0.5), y = c(0.5, p + 0.5), type = "n", axes = FALSE, xlab = "", ylab = "", asp = 1,
        xaxs = "i", yaxs = "i")
  colours <- colorRampPalette(BLUE_TO_RED)(201L)
  at <- cbind(as.vector(col(r)), p + 1 - as.vector(row(r)))
  shade <- colours[round(100 * as.vector(r)) + 101L]
  rect(at[, 1L] - 0.5, at[, 2L] - 0.5, at[, 1L] + 0.5, at[, 2L] + 0.5, col = ifelse(is.na(r), "grey90", shade), border = "white")
  if (!is.null(digits)) {
    shown <- ifelse(is.na(r), "", formatC(as.vector(r), digits = digits, format = "f"))
    text(at[, 1L], at[, 2L], shown, col = ifelse(abs(r) > 0.6 & !is.na(r), "white", "black"), cex = min(1, 8 / p))
  }
  text(0.4, p:1, names, adj = 1, xpd = NA)
  text(seq_len(p) + 0.1, 0.4, names, srt = 45, adj = 1, xpd = NA)
  invisible(x)
}

#' Pictures of principal components
#'
#' The scree plot, or the biplot of two axes.
#' @param x what \code{\link{vm_components}} or \code{\link{vm_biplot}} gave.
#' @param type `"scree"` or `"biplot"`.
#' @param groups a factor or character vector by which the points are coloured: a label for each row of the table.
#' @param axes which two axes the biplot has.
#' @param ... further arguments of `plot.default`, as `main`.
#' @return `x`, invisibly.
#' @examples
#' components <- vm_components(vm_penguins[3:6])
#' plot(components)
#' plot(components, type = "biplot", groups = vm_penguins$species)
#' @importFrom graphics barplot lines points legend arrows mtext
#' @export
plot.vm_components <- function(x, type = c("scree", "biplot"), groups = NULL, axes = 1:2, ...) {
  if (choice(type, c("scree", "biplot"), "type") == "biplot") {
    plot(vm_biplot(x, axes), groups = groups, ...)
    return(invisible(x))
  }
  at <- drawn(barplot, list(...), height = x$percent, col = PALETTE[6L], border = NA, ylab = "per cent of the variance",
              ylim = c(0, 105))
  lines(at, cumsum(x$percent), type = "b", pch = 20, col = PALETTE[2L])
  legend("right", c("each axis", "together"), fill = c(PALETTE[6L], NA), border = NA, lty = c(NA, 1), pch = c(NA, 20),
         col = c(NA, PALETTE[2L]), bty = "n", inset = 0.02)
  invisible(x)
}

#' @rdname plot.vm_components
#' @export
plot.vm_biplot <- function(x, groups = NULL, ...) {
  points <- x$observations[, 1:2, drop = FALSE]
  arrows <- x$variables[, 1:2, drop = FALSE]
  stretch <- 0.8 * max(abs(points)) / max(abs(arrows))
  colour <- "grey40"
  if (!is.null(groups)) {
    if (length(groups) < max(x$rows)) wrong("groups", "expected a label for each row of the table, got ", length(groups))
    groups <- factor(groups[x$rows])
    colour <- PALETTE[(as.integer(groups) - 1L) %% length(PALETTE) + 1L]
  }
  shown <- sprintf("%s (%.1f %%)", names(x$percent)[1:2], x$percent[1:2])
  limits <- function(k) 1.25 * range(points[, k], arrows[, k] * stretch)
  drawn(plot, list(...), x = points, col = colour, pch = 20, xlab = shown[1L], ylab = shown[2L], asp = 1, xlim = limits(1L),
        ylim = limits(2L))
  abline(h = 0, v = 0, col = "grey80")
  graphics::arrows(0, 0, arrows[, 1L] * stretch, arrows[, 2L] * stretch, length = 0.08, lwd = 1.5)
  names <- if (is.null(rownames(arrows))) seq_len(nrow(arrows)) else rownames(arrows)
  text(arrows * stretch, labels = names, pos = ifelse(arrows[, 1L] < 0, 2, 4), font = 2, xpd = NA)
  if (!is.null(groups))
    legend("topleft", levels(groups), pch = 20, col = PALETTE[(seq_len(nlevels(groups)) - 1L) %% length(PALETTE) + 1L], bty = "n")
  invisible(x)
}

#' Pictures of groups
#'
#' A bar for each group, with the letters of those that do not differ.
#' @param x what \code{\link{vm_letters}} or \code{\link{vm_group_by}} gave.
#' @param column which column of the groups is drawn.
#' @param letters what \code{\link{vm_letters}} gave for the same groups, or `NULL`.
#' @param ... further arguments of `barplot`, as `main`.
#' @return `x`, invisibly.
#' @examples
#' groups <- vm_group_by(vm_penguins[3:6], vm_penguins$species)
#' plot(groups, "body_mass_g")
#' plot(vm_letters(c(a = 5, b = 5.2, c = 9), rbind(c(1, 0.8, 0), c(0.8, 1, 0), c(0, 0, 1))))
#' @export
plot.vm_letters <- function(x, ...) {
  bars(named(x$means, names(x$letters)), x$letters, ...)
  invisible(x)
}

#' @rdname plot.vm_letters
#' @export
plot.vm_groups <- function(x, column = names(x)[3L], letters = NULL, ...) {
  column <- choice(column, names(x)[-(1:2)], "column")
  bars(named(x[[column]], x$group), if (!is.null(letters)) letters$letters, ylab = paste(attr(x, "statistic"), "of", column), ...)
  invisible(x)
}

bars <- function(means, letters, ...) {
  at <- drawn(barplot, list(...), height = means, col = PALETTE[6L], border = NA, ylim = 1.12 * range(0, means, na.rm = TRUE))
  if (!is.null(letters)) text(at, means, letters, pos = ifelse(means < 0, 1, 3), font = 2, xpd = NA)
}
