// Pictures are drawn one by one, with time for the page in between.

let waiting = [];
let isDue = false;
let told = []; // who waits for the last one

export function drawLater(draw) {
  waiting.push(draw);
  if (!isDue) setTimeout(drawNext);
  isDue = true;
}

/** When all pictures are drawn. */
export function allDrawn() {
  return new Promise((resolve) => (isDue ? told.push(resolve) : resolve()));
}

/** Leaves those that aren't drawn yet. */
export function drawNoMore() {
  waiting = [];
}

function drawNext() {
  const draw = waiting.shift();
  try {
    draw?.();
  } finally {
    if (waiting.length > 0) {
      setTimeout(drawNext);
    } else {
      isDue = false;
      for (const resolve of told.splice(0)) resolve();
    }
  }
}
