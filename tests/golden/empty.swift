import SwiftUI

// SVG
struct Empty: View {

  var body: some View {
    EmptyView() // Group w/o content
  }
}

struct Empty_Previews: PreviewProvider {

  static var previews: some View {
    VStack {
      Empty()
        .frame(width: 128, height: 128)
        .background(Color.clear.border(Color.green))
        .padding()
    }
  }
}
