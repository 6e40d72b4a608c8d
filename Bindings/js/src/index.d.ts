import type { FlatFunctions } from "./flat.js";

export type { FlatFunctions };

/** Numbers; NaN, null and undefined are missing. An infinity is a number. */
export type Vector = ModuleArray<Float64Array> | ArrayLike<number | null | undefined>;
/** A table, an array of rows, or columns by name. */
export type TableLike = Table | ReadonlyArray<ArrayLike<number | null | undefined>> | Readonly<Record<string, Vector>>;
/** Texts, or numbers whose text counts; null, undefined, NaN and "" are missing. */
export type Labels = ArrayLike<string | number | null | undefined>;

export interface Weighted {
  /** A weight for each row, not negative; 1 each where it is left out. */
  weights?: Vector;
}
export interface Rows extends Weighted {
  /** The rows to leave out: true drops. */
  exclude?: readonly boolean[];
}
export interface Divisor {
  /** 0 divides by the sum of weights W, 1 by less: the short form of `divisor`. */
  ddof?: 0 | 1;
  /** W - 1 (weights count rows), W - W/m (weights are relative; m rows), or W. */
  divisor?: "frequency" | "reliability" | "population";
}
export interface Spread extends Rows, Divisor {
  /** Whether a row of weight 0 counts in m, the number of rows. */
  zeroWeights?: "counted" | "skipped";
}
export interface Seed {
  /** Starts the series of random numbers; left out, one is drawn. */
  seed?: number;
}

/** Numbers in rows and columns; NaN is missing. */
export class Table {
  constructor(rows: number, cols: number, cells: Float64Array, names?: readonly string[] | null);
  readonly rows: number;
  readonly cols: number;
  /** Column after column. */
  readonly cells: Float64Array;
  /** Of the columns. */
  readonly names: readonly string[] | null;
  /** The cells of a column, by its place from 0 or by its name: a view, not a copy. */
  column(column: number | string): Float64Array;
  at(i: number, j: number): number;
  toRows(): number[][];
  toColumns(): Record<string, Float64Array>;
}

/** Cells in the module's memory, which calls work on where they are: made by `allocate`. */
export class ModuleArray<Cells extends Float64Array | Int32Array | Int16Array> {
  private constructor();
  readonly length: number;
  /** The cells. Read it anew after a call: it is another array where the module's memory has grown. */
  readonly array: Cells;
  /** Gives the memory back. Freeing twice does nothing. */
  free(): void;
}

/** What the library or its module fails by. A wrong argument is a TypeError or a RangeError instead. */
export class VecMatError extends Error {
  constructor(code: VecMatError["code"], message: string);
  /**
   * "memory": the module has no more memory. "failed": a computation ended without a result. "stopped": the module met with
   * an error of its own, and takes no further calls.
   */
  readonly code: "memory" | "failed" | "stopped";
}

export interface Moments {
  mean: number;
  var: number;
  populationSkewness: number;
  populationKurtosis: number;
  skewness: number;
  kurtosis: number;
  skewnessError: number;
  kurtosisError: number;
}
export interface Categories {
  names: string[];
  weights: Float64Array;
  /** The category with the largest weight; "" where there is none. */
  mode: string;
}
export interface Groups<Key> {
  /** In ascending order. */
  keys: Key[];
  sizes: Int32Array;
  /** A row for each group. */
  table: Table;
}
export interface Eigen {
  values: Float64Array;
  /** In columns. */
  vectors: Table;
}
export interface Components {
  eigenvalues: Float64Array;
  percent: Float64Array;
  /** In columns. */
  loadings: Table;
  /** A row with a missing cell has NaN. */
  scores: Table;
}
export interface LeastSquares {
  /** The intercept last. */
  terms: string[];
  coefficients: Float64Array;
  standardErrors: Float64Array;
  /** NaN for rows with a missing cell, which are left out. */
  fitted: Float64Array;
  rSquared: number;
  /** How many rows entered. */
  rows: number;
}
export interface Drawn {
  /** Row numbers from 0. */
  values: Int32Array;
  /** With which the series started. */
  seed: number;
  /** With which a later call goes on where this one ended. */
  nextSeed: number;
}

/** A number of a vector, one for each column of a table. */
interface OfColumns<Options> {
  (x: Vector, options?: Options): number;
  (x: TableLike, options?: Options): Float64Array;
}

/** The library in one instance of its module. */
export interface VecMat {
  /** The library's own functions, under their names and with their contracts to the bit. */
  readonly flat: FlatFunctions;
  /** Cells in the module's memory, all 0. Give them back by `free()`. */
  allocate(type: Float64ArrayConstructor, length: number): ModuleArray<Float64Array>;
  allocate(type: Int32ArrayConstructor, length: number): ModuleArray<Int32Array>;
  allocate(type: Int16ArrayConstructor, length: number): ModuleArray<Int16Array>;
  /** How many bytes of memory the module has taken from the engine. It never gives them back. */
  memoryBytes(): number;

  /** Arithmetic mean of what is present; NaN where no value enters. */
  mean: OfColumns<Rows>;
  /** Variance. Divides by n - 1 unless told otherwise; NaN where the divisor is 0 or no value enters. */
  var: OfColumns<Spread>;
  /** Standard deviation. */
  std: OfColumns<Spread>;
  /** Weighted sum of what is present. */
  total: OfColumns<Rows>;
  minimum: OfColumns<Pick<Rows, "exclude">>;
  maximum: OfColumns<Pick<Rows, "exclude">>;
  /**
   * Mean, variance, both forms of skewness and excess kurtosis, and the standard errors of the sample forms. The variance
   * divides by n unless told otherwise.
   */
  moments(x: Vector, options?: Rows & Divisor): Moments;
  /** Distances from the mean in standard deviations; `robust`: from the median, in median absolute deviations. */
  zscores(x: Vector, options?: { robust?: boolean }): Float64Array;
  /**
   * Quantile: by interpolation (rule 7 of Hyndman and Fan), with unequal weights by a step rule. `missing: "count"` lets
   * missing values stand in front of all others.
   */
  quantile(x: Vector, q: number, options?: Rows & { missing?: "omit" | "count" }): number;
  quantile(x: TableLike, q: number, options?: Rows & { missing?: "omit" | "count" }): Float64Array;
  /** Median of what is present. */
  median: OfColumns<Rows>;
  /** The values in order, what is missing behind. */
  sort(x: Vector, options?: { descending?: boolean }): Float64Array;
  /** Ranks from 1; NaN for what is missing. Equal values share their mean rank, or, with "dense", the next whole one. */
  rank(x: Vector, options?: Weighted & { ties?: "average" | "dense" }): Float64Array;

  /**
   * Covariances of the columns of a table. A missing cell leaves its row out of the pairs of its column, or, with
   * "complete", out of all.
   */
  cov(x: TableLike, options?: Rows & Divisor & { missing?: "pairwise" | "complete" }): Table;
  /**
   * Pearson's correlations of the columns of a table; NaN for a pair of which one has no spread. A missing cell leaves its
   * row out of the pairs of its column. "columns" divides the covariance of a pair by the deviations of the two columns,
   * each from all of its own rows: such a correlation can lie beyond 1. "complete" leaves the row out everywhere.
   */
  corr(x: TableLike, options?: Rows & { missing?: "pairwise" | "columns" | "complete" }): Table;
  /** Columns brought to mean 0 and standard deviation 1. */
  standardize(x: TableLike, options?: Weighted): { scores: Table; mean: Float64Array; std: Float64Array };
  /** Eigenvalues in descending order and eigenvectors of a symmetric table of any scale. */
  eigh(a: TableLike): Eigen;
  /** The inverse of a square table. */
  inv(a: TableLike): Table;
  /** The x of a x = b. */
  solve(a: TableLike, b: Vector): Float64Array;
  /** Principal components by the eigenvalues of correlations or, with `scale: false`, of covariances. */
  principalComponents(x: TableLike, options?: Weighted & { scale?: boolean }): Components;
  /**
   * How many axes to keep: of eigenvalues in descending order, none below `floor`, enough for `percent` of the sum where
   * that is above 0, at most `most`, and only those at or above `above` where that is above 0 (1 is Kaiser's rule).
   */
  axesToKeep(eigenvalues: Vector, options?: { floor?: number; percent?: number; most?: number; above?: number }): number;
  /**
   * Coordinates of observations and variables for one picture (Gabriel 1971). `alpha` goes from 0, which leaves the
   * variables, to 1, which leaves the observations; the root of `factor` multiplies the variables.
   */
  biplot(scores: TableLike, loadings: TableLike, eigenvalues: Vector, options?: { alpha?: number; factor?: number }): {
    observations: Table;
    variables: Table;
  };
  /**
   * Ordinary or weighted least squares. `degree`: highest power of each variable; `interactions`: products of pairs as well,
   * with a degree above 1; `tolerance`: a column enters where those before it leave this part of it unexplained.
   */
  ols(x: Vector | TableLike, y: Vector, options?: Weighted & {
    degree?: 1 | 2 | 3;
    interactions?: boolean;
    intercept?: boolean;
    tolerance?: number;
  }): LeastSquares;

  /** Which cells are missing: of numbers NaN, null and undefined, of texts the empty one, too. */
  isMissing(x: Vector | Labels): boolean[];
  /** Number of missing values: of a vector, or of each column of a table. */
  countMissing(x: Vector): number;
  countMissing(x: TableLike): Int32Array;
  /** Which rows of a table have no missing cell. */
  completeRows(x: TableLike): boolean[];
  /** The rows without a missing cell. */
  dropMissing(x: TableLike): Table;
  /** A number in place of each missing value. */
  fillMissing(x: Vector, value: number): Float64Array;
  fillMissing(x: TableLike, value: number): Table;
  /**
   * The mean of its column in place of each missing cell; a column without any value stays missing. `reference`: rows from
   * which the means come, in place of those of `x`; the weights are theirs.
   */
  imputeMean(x: TableLike, options?: Weighted & { reference?: TableLike }): Table;
  /** The most frequent category in place of each missing one; null where there is none at all. */
  imputeMode(x: Labels, options?: Weighted): (string | null)[];
  /**
   * The value of the most similar complete row in place of each missing cell. A cell for which no row is comparable gets the
   * mean of its column; one of a column without any value stays missing. Weights count in the variances by which squared
   * differences are divided.
   */
  imputeNearest(x: TableLike, options?: Weighted): Table;

  /**
   * The categories of a column with their weights. Sorted by value where every category begins with a number, else as
   * texts; `sort: false` keeps the order of appearance.
   */
  categories(x: Labels, options?: Weighted & { sort?: boolean }): Categories;
  /** The category with the largest weight, the first of equals; null where every cell is missing. */
  mode(x: Labels, options?: Weighted): string | null;
  /** The place of each cell in the sorted list of categories, from `first` or 0; NaN where it is missing. */
  codes(x: Labels, options?: { first?: number }): { codes: Float64Array; names: string[] };
  /** Dummy columns for the categories of a column. A missing cell makes its row NaN. */
  dummies(x: Labels, options?: { coding?: "indicator" | "baseline" | "effect" | "weightedEffect" }): Table;
  /** How often each category of one column meets each of another; rows with a missing one are left out. */
  crossTable(x: Labels, y: Labels): { table: Table; rows: string[]; columns: string[] };
  /** The distinct values in ascending order, without the missing one. */
  unique(x: Vector): Float64Array;
  /**
   * One row for each group, with an aggregate of each column over the rows of the group; rows without a key are left out.
   * Missing cells are left out of every aggregate, and each row keeps its own weight.
   */
  groupBy<Key extends string | number>(
    x: Vector | TableLike,
    by: ArrayLike<Key | null | undefined>,
    aggregate?: "sum" | "mean" | "median" | "std" | "var" | "min" | "max",
    options?: Weighted,
  ): Groups<Key>;
  /** Letters for groups: two that share a letter do not differ. Empty for a missing mean. */
  compactLetters(means: Vector, differ: (i: number, j: number) => boolean): string[];

  /** The numbers from 0 to n - 1 in random order. */
  permutation(n: number, options?: Seed): Drawn;
  /** k of n rows at random, without replacement, in ascending order. */
  randomSubset(n: number, k: number, options?: Seed): Drawn;
  /** Rows drawn with replacement, n or `size` of them, in ascending order, repeats beside each other. */
  bootstrapRows(n: number, size?: number, options?: Seed): Drawn;
  /** A sample in which each stratum has its share, stratum after stratum. No stratum may be missing. */
  sampleStratified(strata: Vector | Labels, size: number, options?: Seed): Drawn;
}

/**
 * Loads the library. Without options it is loaded once, and every call gives the same. `wasm` is where the module is, or
 * itself; an instance of its own comes of it.
 */
export function load(options?: { wasm?: string | URL | Response | BufferSource | WebAssembly.Module }): Promise<VecMat>;
